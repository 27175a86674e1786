#include "Conversion.h"

#include <bit>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdio>

#include "Support.h"

namespace zarvik {
namespace {

/// What the C library prints, without the zeros that say nothing.
std::string printed(double value) {
  char text[400];
  std::string result(text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%.8f", value)));
  if (result.find('.') == std::string::npos) return result;
  result.erase(result.find_last_not_of('0') + 1);
  return result.back() == '.' ? result + '0' : result;
}

/// All three forms at once; a form that differs from the first shows in the text.
std::string formsOf(double value) {
  char text[doubleTextSize];
  doubleToString(value, text);
  zkstring filled;
  filled.assign(value);
  if (filled != text || doubleToString(value) != text) return std::string("forms differ: ") + text;
  return text;
}

TEST(doubleToString, knowsTheHardValues) {
  std::istringstream values(
      "0 5 100 1e-9 5e-9 1.5e-8 0.5 0.999999995 0.99999999499999 9.999999999 1e15 1e22 9223372036854774784 "
      "9223372036854775808 1e63 1e64 9.9e88 1e89 1e90 1e98 1e308 1.7976931348623157e308 5e-324 inf nan");
  for (std::string word; values >> word;) {
    const double value = std::strtod(word.c_str(), nullptr);
    EXPECT_EQ(formsOf(value), printed(value));
    EXPECT_EQ(formsOf(-value), printed(-value));
  }
  EXPECT_EQ(formsOf(-100.5), "-100.5");
  EXPECT_EQ(floatToString(0.1F), "0.1");
  char text[43];
  floatToString(-std::numeric_limits<float>::max(), text);
  EXPECT_EQ(text, printed(-std::numeric_limits<float>::max()));
}

/// A third each of all bit patterns, of prices with few decimals and of exact halves of the last place.
TEST(doubleToString, roundsAsTheCLibrary) {
  std::mt19937_64 random(1);
  char text[doubleTextSize];
  for (int i = 0; i < 300'000; ++i) {
    const std::uint64_t bits = random();
    const double any = std::bit_cast<double>(bits);
    const double price = static_cast<double>(bits % 100'000'000'000) / std::pow(10.0, static_cast<int>(bits >> 60));
    const double tie = std::ldexp(static_cast<double>(bits >> 24), -9 - static_cast<int>(bits % 24));
    for (const double value : {i % 8 == 0 ? any : price, price, tie}) {
      doubleToString(value, text);
      ASSERT_EQ(text, printed(value));
    }
  }
}

TEST(intToString, printsEveryLengthAndNothingBehindIt) {
  std::mt19937_64 random(2);
  const auto expectText = [](auto write, auto value) {
    char text[longTextSize + 1], expected[longTextSize + 1];
    std::memset(text, '#', sizeof text);
    std::memset(expected, '#', sizeof expected);
    *std::to_chars(expected, std::end(expected), value).ptr = '\0';
    write(value, text);
    ASSERT_EQ(std::string(text, sizeof text), std::string(expected, sizeof expected));
  };
  const auto expectBoth = [&](__int64 value) {
    expectText([](__int64 number, char* out) { v_ltoa(number, out); }, value);
    expectText([](int number, char* out) { v_itoa(number, out); }, static_cast<int>(value));
  };
  for (const __int64 value : {LLONG_MIN, LLONG_MAX, __int64{INT_MIN}, __int64{INT_MAX}}) expectBoth(value);
  for (__int64 power = 1; power < LLONG_MAX / 10; power *= 10) {
    for (const __int64 value : {power - 1, power, power + 1, 60 * power, -power}) expectBoth(value);
  }
  for (int i = 0; i < 300'000; ++i) expectBoth(static_cast<__int64>(random()) >> (random() % 64));
}

TEST(Conversion, printsTheOtherKinds) {
  char text[longTextSize];
  EXPECT_EQ(boolToString(false, text), 5);
  EXPECT_STREQ(text, "false");
  EXPECT_EQ(charToString('\xff', text), 1);
  EXPECT_EQ(charToString('\xff'), text);
  udlongToString(~0ULL, text);  // odd on purpose
  EXPECT_STREQ(text, "-1");
  EXPECT_EQ(udlongToString(1ULL << 63), "-9223372036854775808");
  EXPECT_EQ(intToString(-60), "-60");
}

template <class T>
std::string read(T reader(const char*, const char*), const std::string& text) {
  try {
    return std::to_string(reader(text.data(), text.data() + text.size()));
  } catch (const TransformException& error) {
    return std::string(error.getMessage().data(), error.getMessage().length());
  }
}

TEST(v_atoi, knowsItsLimitsAndOddities) {
  constexpr const char* rows[][3] = {
      {"", "Cannot convert '' to int", "0"},
      {"-", "0", "0"},
      {"3 ", "Cannot convert '3 ' to int", "Cannot convert '3 ' to long"},
      {"2147483647", "2147483647", "2147483647"},
      {"-2147483648", "-2147483648", "-2147483648"},
      {"2147483648", "Integer overflow. Cannot convert '2147483648' to int", "2147483648"},
      {"9999999999", "1410065407", "9999999999"},
      {"-9223372036854775808", "Integer overflow. Cannot convert '-9223372036854775808' to int",
       "-9223372036854775808"},
      {"9223372036854775808", "Integer overflow. Cannot convert '9223372036854775808' to int",
       "Integer overflow. Cannot convert '9223372036854775808' to int"},
      {"9223372036854775809", "Integer overflow. Cannot convert '9223372036854775809' to int",
       "Long overflow. Cannot convert '9223372036854775809' to long"},
  };
  for (const auto& [text, asInt, asLong] : rows) {
    EXPECT_EQ(read(v_atoi, text), asInt);
    EXPECT_EQ(read(v_atol, text), asLong);
  }
}

/// The rule once more, step by step in wider arithmetic that is brought back into the type's range.
__extension__ typedef __int128 Wide;

template <class T>
std::string readSlowly(const std::string& text, const std::string& type, const std::string& wrapped) {
  const std::string failure = "Cannot convert '" + text + "' to ";
  Wide value = 0;
  for (std::size_t i = text[0] == '-' || text[0] == '+' ? 1 : 0; i < text.size(); ++i) {
    if (text[i] < '0' || text[i] > '9') return failure + type;
    value = value * 10 - (text[i] - '0');
    while (value < std::numeric_limits<T>::min()) value += Wide{1} << (8 * sizeof(T));
    if (value > 0) return wrapped + failure + type;
  }
  if (text[0] != '-') value = -value;
  if (value > std::numeric_limits<T>::max()) return "Integer overflow. " + failure + "int";
  return std::to_string(static_cast<__int64>(value));
}

TEST(v_atoi, wrapsByTheRule) {
  std::mt19937 random(3);
  for (int i = 0; i < 200'000; ++i) {
    std::string text(1, "-+123456789"[random() % 11]);
    for (auto n = random() % 22; n > 0; --n) text += "0123456789"[random() % 10];
    if (random() % 16 == 0) text[random() % text.size()] = static_cast<char>(random());
    ASSERT_EQ(read(v_atoi, text), readSlowly<int>(text, "int", "Integer overflow. "));
    ASSERT_EQ(read(v_atol, text), readSlowly<__int64>(text, "long", "Long overflow. "));
  }
}
}  // namespace
}  // namespace zarvik
