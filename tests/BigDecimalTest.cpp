#include "BigDecimal.h"

#include <cmath>

#include "Support.h"

namespace zarvik {
namespace {

std::string str(const BigDecimal& value) { return zarvik::str(value.toString()); }
std::string str(const BigInteger& value) { return zarvik::str(value.toString()); }

/// Made before main, like a cartridge's constants: no other initialiser has to come first.
const BigDecimal early = BigDecimal("1") / BigDecimal("8");

TEST(BigDecimal, showsExactlyItsDigits) {
  EXPECT_EQ(str(early), "0.125");
  zkstring reused;
  for (const char* text : {"12.5", "12", "0", "-0.001", "120.0", "-7000.0", "123456789012345678901234567890.1"}) {
    EXPECT_EQ(str(BigDecimal(text)), text);
    char buffer[100];
    EXPECT_STREQ(BigDecimal(text).toString(buffer), text);
    const zkstring kept = reused;
    const std::string before = kept.c_str();
    bigDecimalToString(BigDecimal(text), reused);
    EXPECT_EQ(reused, text);
    EXPECT_EQ(kept, before.c_str());
  }
  EXPECT_EQ(BigDecimal(("1e" + std::to_string(5000)).c_str()).toString().length(), 5003U);
  EXPECT_EQ(errorOf<TransformException>([] { BigDecimal("1e-2000000000").toString(); }), "Number too long for a text");
}

TEST(BigDecimal, takesFifteenDigitsOfADouble) {
  EXPECT_EQ(str(BigDecimal(0.1)), "0.1");
  EXPECT_EQ(str(BigDecimal(1.0 / 3)), "0.333333333333333");
  EXPECT_EQ(str(BigDecimal(-0.0)), "0");
  EXPECT_EQ(str(BigDecimal(-2.5F)), "-2.5");
  EXPECT_EQ(BigDecimal(1e300).toDouble(), 1e300);
  for (const double value : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(BigDecimal(value).sign(), 0);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
  }
}

TEST(BigDecimal, takesIntegersWhole) {
  EXPECT_EQ(str(BigDecimal(std::numeric_limits<__int64>::min())), "-9223372036854775808");
  EXPECT_EQ(str(BigDecimal(-40)), "-40.0");
  EXPECT_EQ(str(BigInteger(std::numeric_limits<unsigned long long>::max())), "-1");
  EXPECT_EQ(str(BigDecimal(BigInteger("1.5"))), "1.5");
  EXPECT_EQ(str(BigDecimal(zkstring("12\0003", 4))), "12");
}

TEST(BigDecimal, dividesToThirtyDigitsOrTheLongerOperand) {
  EXPECT_EQ(str(BigDecimal("1") / BigDecimal("3")), "0." + std::string(30, '3'));
  EXPECT_EQ(str(BigDecimal("-2") / BigDecimal("3")), "-0." + std::string(30, '6'));
  const BigDecimal nines(std::string(40, '9').c_str());
  EXPECT_EQ((nines / BigDecimal("7")).significant_digits(), 40 + 39);
}

TEST(BigDecimal, remaindersBearTheSignOfTheFirst) {
  EXPECT_EQ(str(BigDecimal("7") % BigDecimal("3")), "1");
  EXPECT_EQ(str(BigDecimal("-7") % BigDecimal("3")), "-1");
  EXPECT_EQ(str(BigDecimal("7.5") % BigDecimal("-2")), "1.5");
}

TEST(BigInteger, quotientKeepsOneDigit) {
  constexpr const char* rows[][3] = {{"10", "4", "3"}, {"1234", "1", "1000"}, {"1000", "3", "300"}, {"-7", "2", "-4"}};
  for (const auto& [a, b, quotient] : rows) EXPECT_EQ(str(BigInteger(a) / BigInteger(b)), quotient) << a;
}

TEST(BigInteger, showsAWholeNumber) {
  EXPECT_EQ(str(BigInteger("120")), "120");
  EXPECT_EQ(str(BigInteger("-2.5")), "-3");
  EXPECT_EQ(str(BigInteger("-0.4")), "0");
  EXPECT_EQ(str(BigInteger("-5").abs()), "5");
  zkstring text("a block with room");
  const Allocations allocations;
  bigIntegerToString(BigInteger("10912000000007"), text);
  EXPECT_EQ(text, "10912000000007");
  EXPECT_EQ(allocations.count(), 0);
}

TEST(BigInteger, longsFailOutsideTheirRange) {
  EXPECT_EQ(BigInteger("-9223372036854775808.9").toLong(), std::numeric_limits<__int64>::min());
  EXPECT_EQ(BigInteger("9223372036854775807").toULong(), 9223372036854775807ULL);
  EXPECT_EQ(BigInteger("-3.99").toInt(), -3);
  EXPECT_EQ(errorOf<TransformException>([] { BigInteger("9223372036854775808").toULong(); }),
            "Integer overflow. Cannot convert '9223372036854775808' to int");
  EXPECT_EQ(errorOf<TransformException>([] { BigDecimal("-1e19").toLong(); }),
            "Long overflow. Cannot convert '-10000000000000000000' to long");
}
}  // namespace
}  // namespace zarvik
