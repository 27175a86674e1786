#include "formula/FormatFunctions.h"

#include <cmath>
#include <cstdio>

#include "Support.h"

namespace zarvik {
namespace {

TEST(FormatFunctions, tellsWhatIsANumber) {
  constexpr std::tuple<const char*, bool, bool, bool> rows[] = {
      {"", false, true, false},
      {"-", false, true, false},
      {"+5", true, true, true},
      {"5+", false, false, true},
      {"12-3", true, false, true},
      {"--5-", true, false, false},
      {"1.5e3", false, false, true},
      {"2147483647", true, true, true},
      {"2147483648", false, true, true},
      {"9999999999", true, true, true},  // wraps into the range
      {"1-2-3-4-5-6", false, false, true},
      {"9223372036854775808", false, false, true},
      {"123456789012345678901234567890123456.5", false, false, true},
  };
  for (const auto& [text, isInt, isLong, isDouble] : rows) {
    EXPECT_EQ(FormatFunctions::isInt(text), isInt) << text;
    EXPECT_EQ(FormatFunctions::isLong(text), isLong) << text;
    EXPECT_EQ(FormatFunctions::isDouble(text), isDouble) << text;
    EXPECT_EQ(FormatFunctions::isFloat(text), isDouble) << text;
  }
}

TEST(FormatFunctions, scansAsTheCLibraryDoes) {
  for (const char* text : {"12abc", " \t-7", "+0012", "2147483647", "-2147483648", "1.5e-3x", "0x1p3", "7e", ".5",
                           "inf", "1234567890123456789012345678901234567.25"}) {
    int integer = 0;
    double number = 0;
    const bool isInteger = std::sscanf(text, "%d", &integer) == 1;
    const bool isNumber = std::sscanf(text, "%lf", &number) == 1;
    if (isInteger && std::abs(number) < 3e9) {
      EXPECT_EQ(FormatFunctions::toInt(zkstring(text)), integer) << text;
    }
    if (isNumber) {
      EXPECT_EQ(FormatFunctions::toDouble(zkstring(text)), number) << text;
      EXPECT_EQ(FormatFunctions::toFloat(zkstring(text)), static_cast<float>(number)) << text;
    }
  }
  const zkstringliteral literal("12345");
  EXPECT_EQ(FormatFunctions::toInt(literal.substr(1, 2)), 23);  // a slice ends where it ends
}

TEST(FormatFunctions, failsWithoutANumber) {
  for (const char* text : {"", "abc", "-", "'"}) {
    const std::string begin = std::string("Formula execution error. Cannot convert '") + text + "' to ";
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { FormatFunctions::toInt(zkstring(text)); }), begin + "int");
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { FormatFunctions::toDouble(zkstring(text)); }), begin + "double");
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { FormatFunctions::toFloat(zkstring(text)); }), begin + "float");
  }
}

TEST(FormatFunctions, convertsBetweenKinds) {
  EXPECT_EQ(FormatFunctions::toChar(""), ' ');
  EXPECT_EQ(FormatFunctions::toChar("xyz"), 'x');
  EXPECT_EQ(FormatFunctions::toInt('\xFF'), -1);
  EXPECT_EQ(FormatFunctions::toLong(zkstring("-12")), -12);
  EXPECT_EQ(FormatFunctions::toInt(BigDecimal("-2.9")), -2);
  EXPECT_EQ(FormatFunctions::toBigDecimal(0.1).toString(), "0.1");
  EXPECT_EQ(BigDecimal(FormatFunctions::toBigInteger(2.5)).toString(), "2.5");  // the fraction is kept
  EXPECT_EQ(BigDecimal(FormatFunctions::toBigInteger("0.5")).toString(), "0.5");
  zkstringbuffer buffer("text");
  EXPECT_EQ(&FormatFunctions::toText(buffer), &buffer);
}

TEST(FormatFunctions, readsAndPrintsDates) {
  EXPECT_EQ(FormatFunctions::formatDate(FormatFunctions::parseDate("Feb 29, 2024")), "Feb 29, 2024");
  const zkstring longPattern(300, '-');
  EXPECT_EQ(FormatFunctions::formatDate(DateTime(2024, 2, 29, 0, 0, 0, 0), longPattern + "yyyy"), longPattern + "2024");
  EXPECT_TRUE(FormatFunctions::isDate("20240229", "yyyyMMdd"));
  EXPECT_FALSE(FormatFunctions::isDate("20230229", "yyyyMMdd"));
  EXPECT_TRUE(FormatFunctions::isDate(zkstring("20240229\0x", 10), "yyyyMMdd"));  // a NUL ends the text
}

}  // namespace
}  // namespace zarvik
