// SPDX-License-Identifier: GPL-3.0-or-later
#include "Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

#include "Error.h"

namespace tracewell {
namespace {

// A double in fixed notation has at most 309 digits before and 1074 after the point.
using NumberBuffer = std::array<char, 1400>;

/// Rounds to nearest with ties to even and checks the range of Integer.
template <class Integer>
Integer toInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Integer>::max())))
    throw overflowError();
  return static_cast<Integer>(rounded);
}

std::int16_t narrowed(int exact) {
  if (exact < std::numeric_limits<std::int16_t>::min() ||
      exact > std::numeric_limits<std::int16_t>::max())
    throw overflowError();
  return static_cast<std::int16_t>(exact);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Where a run of digits that starts at `from` ends.
std::size_t skipDigits(std::string_view text, std::size_t from) {
  while (from < text.size() && isDigit(text[from])) ++from;
  return from;
}

std::size_t skipSign(std::string_view text, std::size_t from) {
  return from < text.size() && (text[from] == '+' || text[from] == '-') ? from + 1 : from;
}

/// Length of the sign, digits and point at the start of `text`; 0 if no digit is among them.
std::size_t decimalLength(std::string_view text) {
  const std::size_t start = skipSign(text, 0);
  std::size_t end = skipDigits(text, start);
  std::size_t digits = end - start;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fraction = skipDigits(text, end + 1);
    digits += fraction - (end + 1);
    end = fraction;
  }
  return digits == 0 ? 0 : end;
}

/// Reads a text that is known to be a number; nothing if it is too large. from_chars knows no "+".
std::optional<double> readNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (status != std::errc::result_out_of_range) return value;
  // Too large is an error, too small is zero: the sign of the exponent tells which.
  const std::size_t exponent = text.find_first_of("eE");
  if (exponent != std::string_view::npos &&
      text.substr(exponent).find('-') != std::string_view::npos)
    return 0;
  return std::nullopt;
}

std::string withoutTrailingZeros(std::string mantissa) {
  mantissa.erase(mantissa.find_last_not_of('0') + 1);
  if (mantissa.ends_with('.')) mantissa.pop_back();
  return mantissa;
}

/// Adds one to the last digit of a decimal text and carries.
std::string incremented(std::string digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] == '.') continue;
    if (digits[i] != '9') {
      ++digits[i];
      return digits;
    }
    digits[i] = '0';
  }
  return "1" + digits;
}

/// What a reader of the number takes it for: 0.015 - 0.01 is 0.005, and 1.005 has a 5 at its end.
double atFifteenDigits(double value) {
  NumberBuffer buffer;
  char* const start = buffer.data();
  const char* const end =
      std::to_chars(start, start + buffer.size(), value, std::chars_format::scientific, 14).ptr;
  return *readNumber({start, end});
}

double orOverflow(std::optional<double> number) {
  if (!number) throw overflowError();
  return *number;
}

std::string_view numberAtStart(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, decimalLength(text));
}

}  // namespace

std::int16_t toInt16(double value) {
  return toInteger<std::int16_t>(value);
}

std::int16_t toInt16(std::string_view text) {
  return toInt16(toDouble(text));
}

std::int16_t addInt16(std::int16_t a, std::int16_t b) {
  return narrowed(a + b);
}

std::int16_t mulInt16(std::int16_t a, std::int16_t b) {
  return narrowed(a * b);
}

std::int32_t toInt32(double value) {
  return toInteger<std::int32_t>(value);
}

double checked(double value) {
  if (!std::isfinite(value)) throw overflowError();
  return value;
}

double divide(double a, double b) {
  if (b == 0 && a != 0) throw divisionByZeroError();
  return checked(a / b);
}

std::string_view trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isNumeric(std::string_view text) {
  text = trimBlanks(text);
  const std::size_t mantissa = decimalLength(text);
  if (mantissa == 0) return false;
  if (mantissa == text.size()) return true;
  if (text[mantissa] != 'e' && text[mantissa] != 'E') return false;
  const std::size_t exponent = skipSign(text, mantissa + 1);
  return exponent < text.size() && skipDigits(text, exponent) == text.size();
}

std::optional<double> finiteNumber(std::string_view text) {
  return isNumeric(text) ? readNumber(trimBlanks(text)) : std::nullopt;
}

double toDouble(std::string_view text) {
  if (!isNumeric(text)) throw typeMismatchError();
  return orOverflow(finiteNumber(text));
}

double leadingNumber(std::string_view text) {
  const std::string_view number = numberAtStart(text);
  return number.empty() ? 0 : orOverflow(readNumber(number));
}

std::string formatExponent(double value) {
  constexpr int decimals = 11;
  NumberBuffer buffer;
  const char* const start = buffer.data();
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                        checked(value), std::chars_format::scientific, decimals)
                              .ptr;
  const std::string text(start, end);
  const std::size_t e = text.find('e');
  int exponent = 0;
  const std::size_t exponentDigits = text[e + 1] == '+' ? e + 2 : e + 1;
  std::from_chars(text.data() + exponentDigits, text.data() + text.size(), exponent);
  std::string mantissa = withoutTrailingZeros(text.substr(0, e));
  if (mantissa == "-0") mantissa = "0";
  return mantissa + "E" + std::to_string(exponent);
}

std::string formatTwoDecimals(double value) {
  return formatDecimals(value, 2);
}

std::string formatDecimals(double value, int decimals) {
  std::string digits = numberText(atFifteenDigits(std::fabs(checked(value))));
  if (digits.find('.') == std::string::npos) digits += '.';
  const std::size_t end = digits.find('.') + 1 + static_cast<std::size_t>(decimals);
  const bool roundUp = digits.size() > end && digits[end] >= '5';
  digits.resize(end, '0');
  if (roundUp) digits = incremented(digits);
  if (decimals == 0) digits.pop_back();
  const bool isZero = digits.find_first_not_of("0.") == std::string::npos;
  return value < 0 && !isZero ? "-" + digits : digits;
}

std::string numberText(double value) {
  NumberBuffer buffer;
  const char* const start = buffer.data();
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                        checked(value), std::chars_format::fixed)
                              .ptr;
  std::string text(start, end);
  return text == "-0" ? "0" : text;
}

std::string shortNumberText(double value, int digits) {
  NumberBuffer buffer;
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                          std::chars_format::general, digits);
  return {buffer.data(), end};
}

bool isWholeNumber(std::string_view text) {
  const std::optional<double> number = finiteNumber(text);
  return number && std::nearbyint(*number) == *number;
}

std::string smallLetters(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

}  // namespace tracewell
