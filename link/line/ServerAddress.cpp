// SPDX-License-Identifier: GPL-3.0-or-later
#include "ServerAddress.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string_view>

#include "FileError.h"
#include "Files.h"

namespace tracewell {
namespace {

constexpr std::string_view scheme = "tcp://";
constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// Visible ASCII only: a name in another alphabet is written in the form that name servers know.
bool isHost(std::string_view text) {
  const auto isNamePart = [](char c) { return c > ' ' && c < '\x7F' && c != '/' && c != '@'; };
  return !text.empty() && std::ranges::all_of(text, isNamePart);
}

std::optional<std::uint16_t> portNumber(std::string_view text) {
  std::uint16_t number{};
  const char* const behind = std::to_address(text.end());
  const auto [end, error] = std::from_chars(text.data(), behind, number);
  const bool isWhole = error == std::errc() && end == behind;
  return isWhole && number != 0 ? std::optional(number) : std::nullopt;
}

std::optional<ServerAddress> serverAddress(std::string_view text) {
  if (!text.starts_with(scheme)) return std::nullopt;
  text.remove_prefix(scheme.size());
  const std::size_t colon = text.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::string_view host = text.substr(0, colon);
  const bool isBracketed = host.starts_with('[') && host.ends_with(']');
  if (isBracketed) host = host.substr(1, host.size() - 2);
  if (!isBracketed && host.find(':') != std::string_view::npos) return std::nullopt;
  const auto port = portNumber(text.substr(colon + 1));
  if (!isHost(host) || !port) return std::nullopt;
  return ServerAddress{std::string(host), *port};
}

}  // namespace

std::string addressText(const ServerAddress& address) {
  const bool hasColon = address.host.find(':') != std::string::npos;
  const std::string host = hasColon ? "[" + address.host + "]" : address.host;
  return host + ":" + std::to_string(address.port);
}

ServerAddress readServerAddress(const std::filesystem::path& file) {
  const std::string text = readWholeFile(file, fileLimit::portAddress);
  if (const auto address = serverAddress(trimmed(text))) return *address;
  throw fileError(pathAccess, "Holds no address tcp://host:port", file);
}

}  // namespace tracewell
