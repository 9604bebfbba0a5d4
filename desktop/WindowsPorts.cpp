// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <initguid.h>

#include <devguid.h>
#include <setupapi.h>

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

/// The adapters and cards that are plugged in, as the Device Manager lists them.
class PortDevices {
 public:
  PortDevices()
      : list_(::SetupDiGetClassDevsW(&GUID_DEVCLASS_PORTS, nullptr, nullptr, DIGCF_PRESENT)) {}
  ~PortDevices() { ::SetupDiDestroyDeviceInfoList(list_); }
  PortDevices(const PortDevices&) = delete;

  /// False behind the last, and where there is no list.
  bool choose(DWORD index) { return ::SetupDiEnumDeviceInfo(list_, index, &chosen_) != 0; }

  QString port() {
    Text text{};
    DWORD bytes = bytesOf(text);
    const HKEY key =
        ::SetupDiOpenDevRegKey(list_, &chosen_, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
    if (key == INVALID_HANDLE_VALUE) return {};
    ::RegQueryValueExW(key, L"PortName", nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                       &bytes);
    ::RegCloseKey(key);
    return QString::fromWCharArray(text.data());
  }

  QString name() {
    Text text{};
    ::SetupDiGetDeviceRegistryPropertyW(list_, &chosen_, SPDRP_FRIENDLYNAME, nullptr,
                                        reinterpret_cast<BYTE*>(text.data()), bytesOf(text),
                                        nullptr);
    return QString::fromWCharArray(text.data());
  }

 private:
  using Text = std::array<wchar_t, 256>;
  /// The last character stays the end of the text.
  static DWORD bytesOf(const Text& text) {
    return static_cast<DWORD>((text.size() - 1) * sizeof(wchar_t));
  }

  HDEVINFO list_;
  SP_DEVINFO_DATA chosen_{sizeof(SP_DEVINFO_DATA), {}, 0, 0};
};

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

/// Most names contain the port, which tells adapters of one kind apart. Others get it in front.
QString nameOfSystemPort(const QString& device) {
  PortDevices devices;
  for (DWORD index = 0; devices.choose(index); ++index) {
    if (devices.port() != device) continue;
    const QString name = devices.name();
    if (!name.isEmpty())
      return name.contains('(' + device + ')') ? name : device + QStringLiteral(": ") + name;
  }
  return device;
}

bool isOpenElsewhere(const std::filesystem::path&) {
  return false;
}

std::unique_ptr<ByteChannel> openSystemPort(const QString& device, const LineSettings& settings) {
  return std::make_unique<WindowsSerialChannel>(device, settings);
}

}  // namespace tracewell
