// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <filesystem>
#include <memory>

#include "ByteChannel.h"

/// The serial ports as this kind of system numbers and names them: UnixPorts.cpp, WindowsPorts.cpp.
namespace tracewell {

extern const int highestSystemPort;

/// The device of the number; empty if none has it.
QString systemPortOf(int number);

/// Whether a file or link "comN" in a folder can stand for the number.
bool mayHavePortFile(int number);

QSet<QString> presentSystemPorts();

/// What the system calls the device, such as "USB Serial Port (COM3)"; `device` where it has no
/// name for it.
QString nameOfSystemPort(const QString& device);

/// Looks without opening it, which would move its control lines. False where that does not show.
bool isOpenElsewhere(const std::filesystem::path& device);

/// `device` is a name such as "ttyUSB0" or "COM3", or a path. Raises deviceError with the system's
/// words.
std::unique_ptr<ByteChannel> openSystemPort(const QString& device, const LineSettings& settings);

}  // namespace tracewell
