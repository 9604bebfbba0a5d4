// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace tracewell {

/// How the line is set. `parity` and `stopBits` are the port's own codes: parity 0 none, 1 even,
/// 3 odd; stop bits 0 one, 2 two.
struct LineSettings {
  std::int16_t portNumber = 0;
  std::int32_t baudRate = 19200;
  std::int16_t dataBits = 8;
  std::int16_t stopBits = 0;
  std::int16_t parity = 0;

  /// Milliseconds that so many bytes take, each with its start, parity and stop bits.
  double timeOf(std::size_t bytes) const {
    const int bits = 1 + dataBits + (parity == 0 ? 0 : 1) + (stopBits == 0 ? 1 : 2);
    return 1000.0 * static_cast<double>(bytes) * bits / std::max(baudRate, 1);
  }

  bool operator==(const LineSettings&) const = default;
};

/// An open line that carries bytes both ways and knows nothing of their meaning. Implemented by
/// desktop/QtSerialChannel, desktop/WindowsSerialChannel, desktop/QtTcpChannel,
/// simulator/SimulatedChannel, and tests/PacedChannel.
///
/// All calls are made on the one thread. A channel that has failed stays failed: every later call
/// raises again, and its owner drops it. Destroying it closes the line and leaves DTR and RTS as
/// they were.
class ByteChannel {
 public:
  virtual ~ByteChannel() = default;

  /// Puts all of `bytes` on the line; may return before they have been sent. Raises deviceError.
  virtual void write(std::string_view bytes) = 0;

  /// Returns all bytes that have arrived and were not yet read. If there are none, waits up to
  /// `timeOut` milliseconds for the first one without running events, and returns an empty text if
  /// none arrives. Raises deviceError once the line is gone and everything that had arrived has
  /// been read.
  virtual std::string read(int timeOut) = 0;

  /// Announces bytes that arrive within so many milliseconds only at their end: waking up for each
  /// few bytes is the main cost of a long transfer. The next read or rest ends it. A channel may
  /// still announce earlier.
  virtual void rest(int milliseconds) { static_cast<void>(milliseconds); }

  /// Called from the event loop, never from inside write or read, when bytes have arrived or the
  /// line has failed. The owner then calls read(0), and may destroy the channel before it returns.
  /// May be called without cause.
  std::function<void()> readable;
};

/// Opens channels by port number. Implemented by desktop/PortDirectory (number 0 is the built-in
/// simulated instrument there) and by the tests.
class ChannelOpener {
 public:
  virtual ~ChannelOpener() = default;

  /// Returns the open channel, owned by the caller. Raises deviceError with the system's reason if
  /// there is no such port, it is taken, or it may not be used. If a file says what the number
  /// means and cannot be read, raises the error of reading.
  virtual std::unique_ptr<ByteChannel> open(const LineSettings& settings) = 0;
};

}  // namespace tracewell
