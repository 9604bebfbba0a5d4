// SPDX-License-Identifier: GPL-3.0-or-later
#include "Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "Error.h"

namespace tracewell {
namespace {

template <class Operation>
int errorOf(Operation operation) {
  try {
    operation();
  } catch (const Error& error) {
    return error.number();
  }
  return 0;
}

TEST(Numbers, RoundToNearestWithTiesToEven) {
  const std::map<double, int> cases = {{0.5, 0},   {1.5, 2},         {2.5, 2},          {-0.5, 0},
                                       {-1.5, -2}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(toInt16(value), expected) << value;
}

TEST(Numbers, OverflowAndDivisionAreErrors) {
  for (const double value : {32767.5, -32769.0, 1e300, std::nan("")})
    EXPECT_EQ(errorOf([&] { toInt16(value); }), overflow) << value;
  EXPECT_EQ(errorOf([] { addInt16(32767, 1); }), overflow);
  EXPECT_EQ(errorOf([] { addInt16(-32768, -1); }), overflow);
  EXPECT_EQ(errorOf([] { mulInt16(656, 50); }), overflow);
  EXPECT_EQ(mulInt16(655, 50), 32750);
  EXPECT_EQ(addInt16(32766, 1), 32767);
  EXPECT_EQ(addInt16(-32767, -1), -32768);
  EXPECT_EQ(errorOf([] { divide(1, 0); }), divisionByZero);
  EXPECT_EQ(errorOf([] { divide(0, 0); }), overflow);
  EXPECT_EQ(errorOf([] { divide(1e300, 1e-300); }), overflow);
  EXPECT_EQ(errorOf([] { toDouble("1e999"); }), overflow);
  EXPECT_EQ(toDouble("1e-999"), 0);
}

TEST(Numbers, IsNumericTakesOneNumberAndNothingElse) {
  for (const char* text : {"1", " 1 ", "+1", "-1.5", ".5", "5.", "5E3", "1e-10", " -1.25E+05 "})
    EXPECT_TRUE(isNumeric(text)) << text;
  for (const char* text : {"", " ", "+", ".", "E5", "1E", "1E+", "1 2", "--1", "1.2.3", "0x10",
                           "1V", "\t1", "1\n", "inf", "nan", "1,5"}) {
    EXPECT_FALSE(isNumeric(text)) << text;
    EXPECT_EQ(errorOf([&] { toDouble(text); }), typeMismatch) << text;
  }
}

TEST(Numbers, LeadingNumberStopsAtTheFirstLetterOrBlank) {
  const std::map<std::string, double> cases = {
      {"2.000", 2}, {"  1.5 V", 1.5}, {"-2.00", -2}, {"+12", 12}, {"2E-3", 2}, {".5V", 0.5},
      {"Null", 0},  {"", 0},          {"-", 0},      {".", 0},    {"1 2", 1}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(leadingNumber(text), expected) << text;
}

TEST(Numbers, ExponentAndTwoDecimalPatterns) {
  const std::tuple<double, const char*, const char*> cases[] = {
      {0, "0E0", "0.00"},
      {-0.0, "0E0", "0.00"},
      {0.125, "1.25E-1", "0.13"},
      {-0.125, "-1.25E-1", "-0.13"},
      {1.005, "1.005E0", "1.01"},
      {-0.004, "-4E-3", "0.00"},
      {9.995, "9.995E0", "10.00"},
      {-0.01 - -0.015, "5E-3", "0.01"},
      {1.0 / 3, "3.33333333333E-1", "0.33"},
      {9.9999999999999, "1E1", "10.00"},
      {1e10, "1E10", "10000000000.00"}};
  for (const auto& [value, exponent, twoDecimals] : cases) {
    EXPECT_EQ(formatExponent(value), exponent);
    EXPECT_EQ(formatTwoDecimals(value), twoDecimals);
  }
}

TEST(Numbers, DefaultTextIsShortAndReadsBack) {
  for (const double value : {1e-7, 123456789.0, 2.0 / 3})
    EXPECT_EQ(toDouble(numberText(value)), value);
  EXPECT_EQ(numberText(0.1), "0.1");
  EXPECT_EQ(numberText(-0.0), "0");
}

}  // namespace
}  // namespace tracewell
