// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tracewell {

/// The address of a serial device server, which passes the bytes of its line on unchanged.
struct ServerAddress {
  std::string host;
  std::uint16_t port = 0;

  bool operator==(const ServerAddress&) const = default;
};

/// "host:port", or "[host]:port" if the host itself has colons.
std::string addressText(const ServerAddress& address);

/// Reads a file with the one line "tcp://host:port"; blanks and line ends around it do not matter.
/// Raises the errors of readWholeFile, and pathAccess for any other content.
ServerAddress readServerAddress(const std::filesystem::path& file);

}  // namespace tracewell
