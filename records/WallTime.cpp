// SPDX-License-Identifier: GPL-3.0-or-later
#include "WallTime.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace tracewell {

std::int64_t wallTimeNow() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

/// The distance of the zone is that of the two ways in which the library tells the moment; more
/// than a day apart they never are.
std::string isoTime(std::int64_t wallTime) {
  using namespace std::chrono;
  const sys_time<milliseconds> moment{milliseconds(wallTime)};
  const auto seconds = floor<std::chrono::seconds>(moment);
  const std::time_t time = system_clock::to_time_t(seconds);
  const std::tm local = *std::localtime(&time);
  const auto localDay =
      sys_days(year(local.tm_year + 1900) / month(static_cast<unsigned>(local.tm_mon) + 1) /
               day(static_cast<unsigned>(local.tm_mday)));
  const auto localTime =
      localDay + hours(local.tm_hour) + minutes(local.tm_min) + std::chrono::seconds(local.tm_sec);
  const auto zone = duration_cast<minutes>(localTime - seconds).count();
  std::array<char, 40> text;
  const int length = std::snprintf(
      text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d.%03d%c%02d:%02d",
      local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
      local.tm_sec, static_cast<int>((moment - seconds).count()), zone < 0 ? '-' : '+',
      static_cast<int>(std::abs(zone) / 60), static_cast<int>(std::abs(zone) % 60));
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace tracewell
