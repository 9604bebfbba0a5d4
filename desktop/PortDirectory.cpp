// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortDirectory.h"

#include <QSerialPortInfo>
#include <QSet>
#include <utility>

#include "DesktopWords.h"
#include "Error.h"
#include "QtSerialChannel.h"
#include "QtValues.h"
#include "SimulatedChannel.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

#ifdef Q_OS_WIN
constexpr int highestNumber = 256;
// A file of such a name is the device itself there, in whatever folder.
constexpr bool hasOverrides = false;
#else
constexpr int highestNumber = 96;
constexpr bool hasOverrides = true;

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
  const QString device = systemDevice(settings.portNumber);
  if (device.isEmpty())
    throw Error(deviceError, "RS232", "There is no port " + std::to_string(settings.portNumber));
  return std::make_unique<QtSerialChannel>(device, settings);
}

std::vector<PortList::Entry> PortDirectory::ports() {
  QSet<QString> present;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) present << port.portName();
  std::vector<Entry> found = {{simulatedPort, deviceOf(simulatedPort)}};
  for (std::int16_t number = 1; number <= highestNumber; ++number) {
    std::error_code ignored;
    const bool isThere = isOverridden(number) ? fs::exists(overrideOf(number), ignored)
                                              : present.contains(systemDevice(number));
    if (isThere) found.push_back({number, deviceOf(number)});
  }
  return found;
}

std::string PortDirectory::deviceOf(std::int16_t number) {
  return fromQt(number == simulatedPort ? panelText("simulated instrument") : systemDevice(number));
}

fs::path PortDirectory::overrideOf(int number) const {
  return programFolder_ / ("com" + std::to_string(number));
}

/// A link whose device is away still means that device and no other.
bool PortDirectory::isOverridden(int number) const {
  std::error_code ignored;
  return hasOverrides && fs::exists(fs::symlink_status(overrideOf(number), ignored));
}

QString PortDirectory::systemDevice(int number) const {
  return isOverridden(number) ? toQt(overrideOf(number)) : usualDevice(number);
}

}  // namespace tracewell
