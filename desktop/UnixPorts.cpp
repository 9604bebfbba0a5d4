// SPDX-License-Identifier: GPL-3.0-or-later
#include <QSerialPortInfo>

#include "QtSerialChannel.h"
#include "SystemPorts.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

struct NumberRange {
  int first;
  const char* devices;
};
constexpr int rangeSize = 32;
constexpr NumberRange ranges[] = {{1, "ttyS"}, {33, "ttyUSB"}, {65, "ttyACM"}};

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

}  // namespace

const int highestSystemPort = 96;

QString systemPortOf(int number) {
  for (const NumberRange& range : ranges)
    if (number >= range.first && number < range.first + rangeSize)
      return QLatin1String(range.devices) + QString::number(number - range.first);
  return {};
}

bool mayHavePortFile(int) {
  return true;
}

QSet<QString> presentSystemPorts() {
  QSet<QString> names;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) names << port.portName();
  return names;
}

QString nameOfSystemPort(const QString& device) {
  return device;
}

/// The processes of other users do not show.
bool isOpenElsewhere(const fs::path& device) {
  std::error_code ignored;
  const fs::path processes = "/proc";
  const fs::path real = fs::canonical("/dev" / device, ignored);
  const fs::path own = fs::read_symlink(processes / "self", ignored);
  std::error_code unread;
  for (fs::directory_iterator process(processes, unread), end; !unread && process != end;
       process.increment(unread)) {
    const bool isNumber = process->path().filename().native().front() <= '9';
    if (isNumber && process->path().filename() != own && uses(process->path(), real)) return true;
  }
  return false;
}

std::unique_ptr<ByteChannel> openSystemPort(const QString& device, const LineSettings& settings) {
  return std::make_unique<QtSerialChannel>(device, settings);
}

}  // namespace tracewell
