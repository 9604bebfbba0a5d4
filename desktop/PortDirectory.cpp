// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortDirectory.h"

#include <QSerialPortInfo>
#include <algorithm>
#include <utility>

#include "QtSerialChannel.h"
#include "SimulatedChannel.h"
#include "Text.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

#ifdef Q_OS_WIN
constexpr int highestNumber = 256;
#else
constexpr int highestNumber = 96;

struct NumberRange {
  int first;
  const char* devices;
};
constexpr int rangeSize = 32;
constexpr NumberRange ranges[] = {{1, "ttyS"}, {33, "ttyUSB"}, {65, "ttyACM"}};
#endif

/// The device that a number means without an override; empty if none.
QString usualDevice(int number) {
#ifdef Q_OS_WIN
  return QStringLiteral("COM%1").arg(number);
#else
  for (const NumberRange& range : ranges)
    if (number >= range.first && number < range.first + rangeSize)
      return QLatin1String(range.devices) + QString::number(number - range.first);
  return {};
#endif
}

}  // namespace

PortDirectory::PortDirectory(fs::path programFolder, Clock& clock)
    : programFolder_(std::move(programFolder)), clock_(clock) {}

std::unique_ptr<ByteChannel> PortDirectory::open(const LineSettings& settings) {
  if (settings.portNumber == simulatedPort)
    return std::make_unique<SimulatedChannel>(simulatedInstrument_, clock_, settings);
  const QString device = deviceOf(settings.portNumber);
  if (device.isEmpty())
    throw Error(deviceError, "RS232", "There is no port " + std::to_string(settings.portNumber));
  return std::make_unique<QtSerialChannel>(device, settings);
}

std::vector<PortList::Entry> PortDirectory::ports() {
  std::vector<Entry> found = {{simulatedPort, "simulated instrument"}};
  for (int number = 1; number <= highestNumber; ++number) {
    const QString device = deviceOf(number);
    if (isThere(number, device))
      found.push_back({static_cast<std::int16_t>(number), fromQt(device)});
  }
  return found;
}

fs::path PortDirectory::overrideOf(int number) const {
  return programFolder_ / ("com" + std::to_string(number));
}

QString PortDirectory::deviceOf(int number) const {
  std::error_code ignored;
  // A link whose device is away still means this device and no other.
  if (fs::is_symlink(fs::symlink_status(overrideOf(number), ignored)) ||
      fs::exists(overrideOf(number), ignored))
    return toQt(overrideOf(number));
  return usualDevice(number);
}

bool PortDirectory::isThere(int number, const QString& device) const {
  std::error_code ignored;
  if (device == toQt(overrideOf(number))) return fs::exists(overrideOf(number), ignored);
  return !device.isEmpty() && !QSerialPortInfo(device).isNull();
}

}  // namespace tracewell
