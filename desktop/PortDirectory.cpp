// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortDirectory.h"

#include <QSerialPortInfo>
#include <QSet>
#include <utility>

#include "Error.h"
#include "PanelText.h"
#include "QtSerialChannel.h"
#include "QtTcpChannel.h"
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

QSet<QString> presentDevices() {
  QSet<QString> names;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) names << port.portName();
  return names;
}

/// The far end of a pseudo-terminal, which is open as the other name, may well hold this one open.
bool uses(const fs::path& process, const fs::path& device) {
  bool isOpen = false;
  std::error_code unread;
  for (fs::directory_iterator file(process / "fd", unread), end; !unread && file != end;
       file.increment(unread)) {
    std::error_code ignored;
    const fs::path open = fs::read_symlink(file->path(), ignored);
    if (open.filename() == "ptmx") return false;
    isOpen = isOpen || open == device;
  }
  return isOpen;
}

/// Looks without opening it, which would move its control lines. The processes of other users do
/// not show.
bool isOpenElsewhere(const fs::path& device) {
  std::error_code ignored;
  const fs::path processes = "/proc";
  const fs::path real = fs::canonical(device, ignored);
  const fs::path own = fs::read_symlink(processes / "self", ignored);
  std::error_code unread;
  for (fs::directory_iterator process(processes, unread), end; !unread && process != end;
       process.increment(unread)) {
    const bool isNumber = process->path().filename().native().front() <= '9';
    if (isNumber && process->path().filename() != own && uses(process->path(), real)) return true;
  }
  return false;
}

}  // namespace

PortDirectory::PortDirectory(fs::path programFolder, Clock& clock, StandBy& standBy)
    : programFolder_(std::move(programFolder)), clock_(clock), standBy_(standBy) {}

std::unique_ptr<ByteChannel> PortDirectory::open(const LineSettings& settings) {
  if (settings.portNumber == simulatedPort)
    return std::make_unique<SimulatedChannel>(simulatedInstrument_, clock_, settings);
  if (const auto server = serverOf(settings.portNumber)) return openServer(*server);
  const QString device = systemDevice(settings.portNumber);
  if (device.isEmpty())
    throw Error(deviceError, "RS232", "There is no port " + std::to_string(settings.portNumber));
  return std::make_unique<QtSerialChannel>(device, settings);
}

/// A question is put again and again when its line cannot be opened. Each would wait as long for a
/// server that is silent.
std::unique_ptr<ByteChannel> PortDirectory::openServer(const ServerAddress& server) {
  constexpr int pause = SerialPort::defaultReadTimeOut;
  constexpr int slow = 500;
  const std::int64_t begin = clock_.milliseconds();
  if (silence_ && silence_->server == server && begin < silence_->until) throw silence_->error;
  try {
    return std::make_unique<QtTcpChannel>(server, standBy_);
  } catch (const Error& error) {
    const std::int64_t now = clock_.milliseconds();
    if (error.number() == deviceError && now - begin > slow)
      silence_ = Silence{server, error, now + pause};
    throw;
  }
}

std::vector<PortList::Entry> PortDirectory::ports() {
  const QSet<QString> present = presentDevices();
  std::vector<Entry> found = {{simulatedPort, deviceOf(simulatedPort)}};
  for (std::int16_t number = 1; number <= highestNumber; ++number) {
    if (isPresent(number, present)) found.push_back({number, deviceOf(number)});
  }
  return found;
}

std::string PortDirectory::deviceOf(std::int16_t number) {
  if (number == simulatedPort) return fromQt(panelText("simulated instrument"));
  try {
    if (const auto server = serverOf(number)) return addressText(*server);
  } catch (const Error&) {
    // Opening it says what is wrong with it.
  }
  return fromQt(systemDevice(number));
}

PortList::State PortDirectory::stateOf(std::int16_t number) {
  if (number == simulatedPort) return State::ready;
  if (!isPresent(number, presentDevices())) return State::absent;
  // Whether anybody listens there shows only by connecting.
  if (servers_.contains(number)) return State::ready;
  const fs::path device =
      isOverridden(number) ? overrideOf(number) : "/dev" / toPath(usualDevice(number));
  return isOpenElsewhere(device) ? State::inUseElsewhere : State::ready;
}

std::optional<ServerAddress> PortDirectory::serverOf(int number) {
  if (const auto known = servers_.find(number); known != servers_.end()) return known->second;
  std::error_code ignored;
  const bool isFile = fs::is_regular_file(fs::symlink_status(overrideOf(number), ignored));
  if (!isOverridden(number) || !isFile) return std::nullopt;
  return servers_[number] = readServerAddress(overrideOf(number));
}

bool PortDirectory::isPresent(int number, const QSet<QString>& devices) const {
  if (servers_.contains(number)) return true;
  std::error_code ignored;
  return isOverridden(number) ? fs::exists(overrideOf(number), ignored)
                              : devices.contains(usualDevice(number));
}

fs::path PortDirectory::overrideOf(int number) const {
  return programFolder_ / ("com" + std::to_string(number));
}

/// A link whose device is away still means that device and no other.
bool PortDirectory::isOverridden(int number) const {
  std::error_code ignored;
  if (hasOverrides && fs::exists(fs::symlink_status(overrideOf(number), ignored)))
    overridden_.insert(number);
  return overridden_.contains(number);
}

QString PortDirectory::systemDevice(int number) const {
  return isOverridden(number) ? toQt(overrideOf(number)) : usualDevice(number);
}

}  // namespace tracewell
