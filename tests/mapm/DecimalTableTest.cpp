// Every operation against results that were computed elsewhere, and long ones against what must hold between them.
#include <algorithm>
#include <cstdint>

#include "BigDecimal.h"
#include "Support.h"

using zarvik::BigDecimal;

namespace {

struct Operand {
  std::uint64_t seed;
  int count;
  int exponent;
};
struct Row {
  char operation;
  Operand a;
  Operand b;
  int places;
  std::uint64_t hash;
};
constexpr Row rows[] = {
#include "DecimalTable.inc"
};

/// As make_table.py makes them.
std::string textOf(const Operand& operand) {
  std::string text = operand.seed / 4 % 2 != 0 ? "-" : "";
  std::uint64_t state = operand.seed;
  for (int i = 0; i < operand.count; ++i) {
    state = state * 6364136223846793005 + 1442695040888963407;
    int digit = static_cast<int>((state >> 33) % 10);
    if (operand.seed % 4 == 0) digit = digit % 2 * 9;
    text += static_cast<char>('0' + (i == 0 && digit == 0 ? 9 : digit));
  }
  return text + "e" + std::to_string(operand.exponent);
}

std::uint64_t fnv(const std::string& text) {
  std::uint64_t value = 14695981039346656037U;
  for (const char c : text) value = (value ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return value;
}

BigDecimal dec(const std::string& text) { return BigDecimal(text.c_str()); }

std::string scientific(const MAPM& value) {
  std::vector<char> text(static_cast<std::size_t>(value.significant_digits()) + 20);
  value.toString(text.data(), -1);
  return text.data();
}

MAPM calculate(const Row& row, const BigDecimal& a, const BigDecimal& b) {
  if (row.operation == '+') return a + b;
  if (row.operation == '-') return a - b;
  if (row.operation == '*') return a * b;
  if (row.operation == '/') return a.divide(b, row.places);
  if (row.operation == 'i') return a.integer_divide(b);
  if (row.operation == '%') return a % b;
  return a.round(row.places);
}

/// `count` random digits, none of them 0 at the ends.
std::string randomDigits(std::mt19937& random, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += static_cast<char>('0' + random() % 10);
  text.front() = text.back() = '7';
  return text;
}

TEST(DecimalTable, everyResultIsExact) {
  for (const Row& row : rows) {
    const std::string text = scientific(calculate(row, dec(textOf(row.a)), dec(textOf(row.b))));
    EXPECT_EQ(fnv(text), row.hash) << textOf(row.a) << ' ' << row.operation << ' ' << textOf(row.b) << " to "
                                   << row.places << " gives " << text;
  }
}

/// The sum of two rows of as many digits, digit by digit.
std::string sumOnPaper(const std::string& a, const std::string& b) {
  std::string sum;
  int carry = 0;
  for (std::size_t i = a.size(); i-- > 0; carry /= 10) {
    carry += a[i] - '0' + b[i] - '0';
    sum.insert(sum.begin(), static_cast<char>('0' + carry % 10));
  }
  return static_cast<char>('0' + carry) + sum;
}

/// Carries that arise, pass on and stop everywhere in a row; exponents and lengths differ where zeros stand at an end.
TEST(DecimalTable, sumsCarryAsOnPaper) {
  std::mt19937 random(7);
  constexpr std::size_t counts[] = {1, 2, 16, 17, 29, 30, 31, 32, 33, 64, 65, 127, 128, 129, 160, 161, 289};
  for (const std::size_t count : counts) {
    for (int round = 0; round < 120; ++round) {
      const char* const kinds[] = {"0123456789", "0000999999", "4545454545"};
      std::string a;
      std::string b;
      for (std::size_t i = 0; i < count; ++i) {
        a += kinds[round % 3][random() % 10];
        b += round % 2 != 0 ? kinds[round % 3][random() % 10] : static_cast<char>('9' - a[i] + '0');
      }
      b[random() % count] = '9';
      if (round % 5 == 0) b.replace(0, random() % count, random() % count, '0');
      if (round % 7 == 0) std::fill(a.begin() + static_cast<long>(random() % count), a.end(), '0');
      b.resize(count, '0');
      const BigDecimal sum = dec(a) + dec(b);
      EXPECT_TRUE(sum == dec(sumOnPaper(a, b))) << a << " + " << b;
      EXPECT_TRUE(sum - dec(a) == dec(b)) << a << " + " << b;
    }
  }
}

TEST(DecimalTable, operationsUndoEachOther) {
  std::mt19937 random(5);
  for (const int count : {20, 95, 96, 300, 2500, 9000, 30000}) {
    const BigDecimal a = dec(randomDigits(random, count) + "e-9");
    const BigDecimal b = dec("-" + randomDigits(random, count / 2 + 1));
    EXPECT_TRUE((a + b) - b == a) << count;
    EXPECT_TRUE(a * b / b == a) << count;
    EXPECT_TRUE((a + b) * (a - b) == a * a - b * b) << count;
    MAPM quotient;
    MAPM remainder;
    (a * a).integer_div_rem(b, quotient, remainder);
    EXPECT_TRUE(quotient.is_integer() && remainder.sign() >= 0 && remainder < b.abs()) << count;
    EXPECT_TRUE(dec(scientific(quotient)) * b + dec(scientific(remainder)) == a * a) << count;
  }
}

unsigned long remainderOf(const std::string& digits, unsigned long prime) {
  unsigned long rest = 0;
  for (const char digit : digits) rest = (rest * 10 + static_cast<unsigned long>(digit - '0')) % prime;
  return rest;
}

TEST(DecimalTable, productOfMillionsOfDigitsIsRightModuloPrimes) {
  std::mt19937 random(6);
  const std::string a = randomDigits(random, 1'100'003);
  const std::string b = std::string(1'000'001, '9');
  const MAPM product = dec(a) * dec(b);
  std::vector<char> text(a.size() + b.size() + 1);
  product.toIntegerString(text.data());
  for (const unsigned long prime : {999'999'937UL, 1'000'000'007UL, 2'147'483'647UL, 4'294'967'291UL}) {
    EXPECT_EQ(remainderOf(text.data(), prime), remainderOf(a, prime) * remainderOf(b, prime) % prime) << prime;
  }
}
}  // namespace
