// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tracewell {

/// Where a serial device server listens, which passes the bytes of its line on as they are.
struct ServerAddress {
  std::string host;
  std::uint16_t port = 0;

  bool operator==(const ServerAddress&) const = default;
};

/// "host:port", and "[host]:port" where the host has colons of its own.
std::string addressText(const ServerAddress& address);

/// What a file with the one line "tcp://host:port" names; blanks and line ends around it do not
/// matter. Raises the errors of readWholeFile, and pathAccess where anything else stands in it.
ServerAddress readServerAddress(const std::filesystem::path& file);

}  // namespace tracewell
