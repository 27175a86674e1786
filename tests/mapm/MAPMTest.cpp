#include "mapm/MAPM.h"

#include <cstdlib>
#include <cstring>
#include <thread>

#include "Support.h"

namespace {

std::string general(const MAPM& value) {
  char text[500];
  value.toString(text, -1);
  return text;
}

/// What `action` prints on standard error.
template <class Action>
std::string warningOf(Action action) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}
std::string warning(const std::string& text) { return "MAPM Warning: " + text + "\n"; }

class Number : public MAPM {  // opens the record
 public:
  using MAPM::cval;
  using MAPM::MAPM;
  using MAPM::val;
};

TEST(MAPM, readsTexts) {
  const auto reads = [](const char* text, const char* value) {
    EXPECT_EQ(warningOf([&] { EXPECT_EQ(general(MAPM(text)), value) << text; }), "") << text;
  };
  for (const char* text : {"", ".", "-", "e5", "-0.000", "0e99999999999"}) reads(text, "0.0E+0");
  for (const char* text : {" \t+12.50", "12.5", "0012.5e", "125e-1zz", ".125E2", "1250.e -2"}) reads(text, "1.25E+1");
  reads("-007.", "-7.0E+0");
  reads("000.00012", "1.2E-4");
  reads("123456789.123456789e1", "1.23456789123456789E+9");
  reads("0000000000.0000000012345678", "1.2345678E-9");
  reads("1e2147483646", "1.0E+2147483646");
}

TEST(MAPM, warnsOfTextsThatAreNoNumbers) {
  for (const char* text : {"x", "1x", "1.2.3", "12345678-", "--1", "- 1", "1 ", "0x10", "1,5", "12345678901234567:"}) {
    EXPECT_EQ(warningOf([&] { EXPECT_EQ(MAPM(text).sign(), 0); }),
              warning("'m_apm_set_string', Non-digit char found in parse"))
        << text;
  }
  for (const char* text : {"1e2147483647", "1e-99999999999", "1e99999999999999999999", ".1e-2147483648"}) {
    EXPECT_EQ(warningOf([&] { EXPECT_EQ(MAPM(text).sign(), 0); }), warning("'m_apm_normalize', Exponent out of range"))
        << text;
  }
}

TEST(MAPM, writesFixedPointTexts) {
  constexpr std::tuple<const char*, int, const char*, const char*> rows[] = {
      {"1234567.891", 2, "1234567.89", "1'234'567,89"},
      {"1234567.891", -1, "1234567.891", "1'234'567,891"},
      {"1e12", 1, "1000000000000.0", "1'000'000'000'000,0"},
      {"999.995", 2, "1000.00", "1'000,00"},
      {"-0.004", 2, "0.00", "0,00"},
      {"-0.005", 2, "-0.01", "-0,01"},
      {"-0.5", 0, "-1", "-1"},
      {"120", -1, "120.0", "120,0"},
      {"0", -1, "0.0", "0,0"},
      {"0.00012", 3, "0.000", "0,000"},
      {"0.00012", 8, "0.00012000", "0,00012000"},
      {"123456", 0, "123456", "123'456"},
      {"-123", 1, "-123.0", "-123,0"},
  };
  for (const auto& [digits, places, fixed, parted] : rows) {
    const MAPM value(digits);
    char text[100];
    value.toFixPtString(text, places);
    EXPECT_STREQ(text, fixed) << digits;
    EXPECT_LE(static_cast<long long>(std::strlen(text)), value.fixPtLength(places));
    char* const grouped = value.toFixPtStringExp(places, ',', '\'', 3);
    EXPECT_STREQ(grouped, parted) << digits;
    std::free(grouped);
  }
}

TEST(MAPM, writesScientificAndIntegerTexts) {
  constexpr std::tuple<const char*, int, const char*, long> rows[] = {
      {"0", 2, "0.00E+0 0", 0},
      {"-1234.56", 2, "-1.23E+3 -1234", -1234},
      {"9.996", 2, "1.00E+1 9", 9},
      {"-0.9", 0, "-9E-1 0", 0},
      {"1200", 4, "1.2000E+3 1200", 1200},
      {"-1234567890123456789", 2, "-1.23E+18 -1234567890123456789", -1234567890123456789},
      {"9223372036854775808", -1, "9.223372036854775808E+18 9223372036854775808", 9223372036854775807},
  };
  for (const auto& [digits, places, texts, whole] : rows) {
    char scientific[100];
    char integer[100];
    MAPM(digits).toString(scientific, places);
    MAPM(digits).toIntegerString(integer);
    EXPECT_EQ(std::string(scientific) + " " + integer, texts);
    EXPECT_EQ(MAPM(digits).toLong(), whole);
    EXPECT_EQ(MAPM(digits).toDouble(), std::strtod(digits, nullptr));
  }
  EXPECT_EQ(MAPM("-1e400").toFloat(), -std::numeric_limits<float>::infinity());
}

TEST(MAPM, refusesWhatIsBeyondReason) {
  const MAPM huge("1e2000000000");
  const MAPM tiny("1e-2000000000");
  char text[8] = "unset";
  EXPECT_EQ(warningOf([&] { huge.toFixPtString(text, 2); }), warning("'m_apm_to_string', Text too long"));
  EXPECT_STREQ(text, "");
  EXPECT_NE(warningOf([&] { MAPM(1).toString(text, 2147483647); }), "");
  EXPECT_NE(warningOf([&] { MAPM(1).toFixPtString(text, 2147483647); }), "");
  EXPECT_EQ(warningOf([&] { EXPECT_EQ(huge.integer_divide(MAPM(3)).sign(), 0); }),
            warning("'m_apm_divide', Result too long"));
  EXPECT_NE(warningOf([&] { EXPECT_EQ(MAPM(1).divide(MAPM(3), 2147483647).sign(), 0); }), "");
  EXPECT_NE(warningOf([&] { EXPECT_EQ((++MAPM(huge)).sign(), 0); }), "");
  EXPECT_NE(warningOf([&] { EXPECT_EQ(huge.divide(tiny, 5).sign(), 0); }), "");
  EXPECT_EQ(warningOf([&] { EXPECT_EQ(general(tiny.divide(MAPM(3), 5)), "3.3333E-2000000001"); }), "");
  EXPECT_EQ(huge.toDouble(), std::numeric_limits<double>::infinity());
  EXPECT_GT(huge, tiny);
}

TEST(MAPM, warnsInItsWords) {
  const MAPM zero;
  EXPECT_EQ(warningOf([&] { EXPECT_EQ(MAPM(5).divide(zero).sign(), 0); }), warning("'m_apm_divide', Divide by 0"));
  EXPECT_EQ(warningOf([&] { EXPECT_EQ(general(MAPM(5).rem(zero)), "5.0E+0"); }),
            warning("'m_apm_divide', Divide by 0"));
  EXPECT_EQ(warningOf([&] { EXPECT_FALSE(MAPM("0.5").is_even()); }), warning("'m_apm_is_even', Non-integer input"));
  M_APM_struct* const result = m_apm_init();
  M_APM_struct none = *result;
  EXPECT_EQ(warningOf([&] { m_apm_reciprocal(result, 5, Number().cval()); }), warning("'m_apm_reciprocal', Input = 0"));
  m_apm_free(result);
  none.id = 7;
  EXPECT_EQ(warningOf([&] { m_apm_free(&none); }), warning("'m_apm_free', Invalid M_APM variable"));
  EXPECT_EXIT(M_apm_log_error_msg(true, "the end"), testing::ExitedWithCode(100), "MAPM Error: the end\n");
}

TEST(MAPM, roundsHalfAwayFromZero) {
  const auto rounded = [](const char* text, int places) { return general(MAPM(text).round(places)); };
  EXPECT_EQ(rounded("1234", 0) + " " + rounded("-1500", 0) + " " + rounded("2.5", 0), "1.0E+3 -2.0E+3 3.0E+0");
  EXPECT_EQ(rounded("9995", 2) + " " + rounded("-0.0449", 1) + " " + rounded("12.34", 9), "1.0E+4 -4.5E-2 1.234E+1");
  EXPECT_EQ(rounded("7", -1) + " " + rounded("4", -1) + " " + rounded("9", -2), "1.0E+1 0.0E+0 0.0E+0");
}

TEST(MAPM, writingLeavesOtherHandlesAlone) {
  MAPM a("99");
  MAPM b = a;
  ++a;
  const MAPM c = b++;
  EXPECT_EQ(general(a) + general(b) + general(c), "1.0E+21.0E+29.9E+1");
  Number original("5");
  const Number shared = original;
  EXPECT_EQ(original.cval()->refCount, 2);
  original.val()->sign = -1;
  EXPECT_EQ(shared.cval()->sign, 1);
  EXPECT_EQ(shared.cval()->refCount, 1);
}

TEST(MAPM, movesTouchNoCountAndLeaveZero) {
  Number source("12");
  const Number other = source;
  Number target = std::move(source);
  EXPECT_EQ(other.cval()->refCount, 2);
  EXPECT_EQ(target.cval(), other.cval());
  EXPECT_EQ(source.sign(), 0);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(general(++source), "1.0E+0");
  Number& same = target;
  target = std::move(same);
  EXPECT_EQ(general(target), "1.2E+1");
}

TEST(MAPM, parityLooksAtTheUnits) {
  for (const char* even : {"0", "12", "-30", "1e9"}) EXPECT_TRUE(MAPM(even).is_even() && !MAPM(even).is_odd()) << even;
  EXPECT_TRUE(MAPM("123").is_odd() && !MAPM("123").is_even());
}

/// The records go to the pool of a thread that made none; the sanitizer looks at what becomes of them.
TEST(MAPM, numbersMayEndInAnotherThread) {
  std::vector<MAPM> numbers;
  for (int i = 1; i < 9; ++i) numbers.emplace_back(i);
  std::thread([taken = std::move(numbers)]() mutable { taken.clear(); }).join();
}

TEST(MAPM, arithmeticOnShortNumbersDoesNotAllocate) {
  const zarvik::BigDecimal a("1234567890.12345678901234567890");
  const zarvik::BigDecimal b("987654321098765432109876543210");
  const zarvik::BigDecimal c("-0.123456789012345678901234567890");
  zarvik::BigDecimal sum;
  const auto calculate = [&] { sum = a * b + c - a / b; };
  calculate();
  calculate();  // with the old sum still there: now the pool is warm
  const Allocations allocations;
  for (int i = 0; i < 100; ++i) calculate();
  EXPECT_EQ(allocations.count(), 0);
}
}  // namespace
