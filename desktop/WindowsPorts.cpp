// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <array>

#include "SystemPorts.h"
#include "WindowsSerialChannel.h"

namespace tracewell {
namespace {

constexpr const wchar_t* portsKey = LR"(HARDWARE\DEVICEMAP\SERIALCOMM)";

/// The name of one port of the system's list; false behind the last.
bool readPort(HKEY key, DWORD index, QString& name) {
  std::array<wchar_t, 256> driver{};
  std::array<wchar_t, 256> port{};
  auto driverLength = static_cast<DWORD>(driver.size());
  auto portBytes = static_cast<DWORD>((port.size() - 1) * sizeof(wchar_t));
  DWORD type = 0;
  if (::RegEnumValueW(key, index, driver.data(), &driverLength, nullptr, &type,
                      reinterpret_cast<BYTE*>(port.data()), &portBytes) != ERROR_SUCCESS)
    return false;
  name = type == REG_SZ ? QString::fromWCharArray(port.data()) : QString();
  return true;
}

}  // namespace

const int highestSystemPort = 256;

QString systemPortOf(int number) {
  return number >= 1 && number <= highestSystemPort ? QStringLiteral("COM%1").arg(number)
                                                    : QString();
}

/// A file of one of the first nine names is the port itself there, in whatever folder.
bool mayHavePortFile(int number) {
  return number >= 10;
}

QSet<QString> presentSystemPorts() {
  QSet<QString> names;
  HKEY key = nullptr;
  if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, portsKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
    return names;
  QString name;
  for (DWORD index = 0; readPort(key, index, name); ++index) names << name;
  ::RegCloseKey(key);
  return names;
}

bool isOpenElsewhere(const std::filesystem::path&) {
  return false;
}

std::unique_ptr<ByteChannel> openSystemPort(const QString& device, const LineSettings& settings) {
  return std::make_unique<WindowsSerialChannel>(device, settings);
}

}  // namespace tracewell
