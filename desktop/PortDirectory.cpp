// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortDirectory.h"

#include <utility>

#include "Error.h"
#include "PanelText.h"
#include "QtTcpChannel.h"
#include "QtValues.h"
#include "SimulatedChannel.h"
#include "SystemPorts.h"

namespace tracewell {

namespace fs = std::filesystem;

PortDirectory::PortDirectory(fs::path programFolder, Clock& clock, StandBy& standBy)
    : programFolder_(std::move(programFolder)), clock_(clock), standBy_(standBy) {}

std::unique_ptr<ByteChannel> PortDirectory::open(const LineSettings& settings) {
  if (settings.portNumber == simulatedPort)
    return std::make_unique<SimulatedChannel>(simulatedInstrument_, clock_, settings);
  if (const auto server = serverOf(settings.portNumber)) return openServer(*server);
  const QString device = systemDevice(settings.portNumber);
  if (device.isEmpty())
    throw Error(deviceError, "RS232", "There is no port " + std::to_string(settings.portNumber));
  return openSystemPort(device, settings);
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
  const QSet<QString> present = presentSystemPorts();
  std::vector<Entry> found = {{simulatedPort, deviceOf(simulatedPort)}};
  for (std::int16_t number = 1; number <= highestSystemPort; ++number) {
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
  return fromQt(nameOfSystemPort(systemDevice(number)));
}

PortList::State PortDirectory::stateOf(std::int16_t number) {
  if (number == simulatedPort) return State::ready;
  if (!isPresent(number, presentSystemPorts())) return State::absent;
  // Whether anybody listens there shows only by connecting.
  if (servers_.contains(number)) return State::ready;
  return isOpenElsewhere(toPath(systemDevice(number))) ? State::inUseElsewhere : State::ready;
}

std::optional<ServerAddress> PortDirectory::serverOf(int number) {
  if (const auto known = servers_.find(number); known != servers_.end()) return known->second;
  std::error_code ignored;
  if (!isOverridden(number) ||
      !fs::is_regular_file(fs::symlink_status(overrideOf(number), ignored)))
    return std::nullopt;
  return servers_[number] = readServerAddress(overrideOf(number));
}

bool PortDirectory::isPresent(int number, const QSet<QString>& devices) const {
  if (servers_.contains(number)) return true;
  std::error_code ignored;
  return isOverridden(number) ? fs::exists(overrideOf(number), ignored)
                              : devices.contains(systemPortOf(number));
}

fs::path PortDirectory::overrideOf(int number) const {
  return programFolder_ / ("com" + std::to_string(number));
}

/// A link whose device is away still means that device and no other.
bool PortDirectory::isOverridden(int number) const {
  std::error_code ignored;
  if (mayHavePortFile(number) && fs::exists(fs::symlink_status(overrideOf(number), ignored)))
    overridden_.insert(number);
  return overridden_.contains(number);
}

QString PortDirectory::systemDevice(int number) const {
  return isOverridden(number) ? toQt(overrideOf(number)) : systemPortOf(number);
}

}  // namespace tracewell
