#include "Conversion.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "DigitPairs.h"
#include "Exceptions.h"
#include "TextForms.h"
#include "ThrowFrom.h"
#include "date/DateTime.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/Conversion";
constinit const zkstringliteral datePattern("MMM dd, yyyy");

/// A number of one or two digits, without a branch: behind a single digit a 0 is written, for what follows to replace.
char* putOneOrTwo(char* out, std::uint64_t n) {
  std::memcpy(out, smallNumberTexts[n].data(), 2);
  return out + (n < 10 ? 1 : 2);
}

constexpr std::uint64_t hundredToThe(int n) { return n == 0 ? 1 : 100 * hundredToThe(n - 1); }

/// A number as a fixed-point value with the point behind its first two digits: multiplied by the reciprocal of
/// 100^`Pairs`, its digits leave at the top, two for each multiplication by 100, with no division at all. 57 bits of
/// fraction leave room for two digits above, and are enough for all numbers below 2^32 and 100^(`Pairs` + 1).
template <int Pairs>
class DigitStream {
 public:
  explicit DigitStream(std::uint32_t n) : fixed(n * (one / hundredToThe(Pairs) + 1)) {}

  std::uint64_t first() const { return fixed >> bits; }
  char* putRest(char* out) {
    for (int i = 0; i < Pairs; ++i) {
      fixed = (fixed & (one - 1)) * 100;
      out = putPair(out, fixed >> bits);
    }
    return out;
  }

 private:
  static constexpr int bits = 57;
  static constexpr std::uint64_t one = std::uint64_t{1} << bits;
  std::uint64_t fixed;
};

/// The 2 x `Pairs` + 1 or 2 x `Pairs` + 2 digits of a number that has as many.
template <int Pairs>
char* putFrom(char* out, std::uint32_t n) {
  DigitStream<Pairs> digits(n);
  return digits.putRest(putOneOrTwo(out, digits.first()));
}

/// Exactly eight digits, with leading zeros, of a number below 10^8.
char* putEight(char* out, std::uint32_t n) {
  DigitStream<3> digits(n);
  return digits.putRest(putPair(out, digits.first()));
}

char* putUnsigned(char* out, std::uint32_t n) {
  if (n < 10'000) return n < 100 ? putOneOrTwo(out, n) : putPair(putOneOrTwo(out, n / 100), n % 100);
  if (n < 1'000'000) return putFrom<2>(out, n);
  if (n < 100'000'000) return putFrom<3>(out, n);
  return putFrom<4>(out, n);
}

constexpr std::uint64_t tenToThe8 = 100'000'000;

char* putUnsigned(char* out, std::uint64_t n) {
  if (n <= std::numeric_limits<std::uint32_t>::max()) return putUnsigned(out, static_cast<std::uint32_t>(n));
  std::uint64_t high = n / tenToThe8;
  if (high >= tenToThe8) {
    out = putUnsigned(out, static_cast<std::uint32_t>(high / tenToThe8));
    out = putEight(out, static_cast<std::uint32_t>(high % tenToThe8));
  } else {
    out = putUnsigned(out, static_cast<std::uint32_t>(high));
  }
  return putEight(out, static_cast<std::uint32_t>(n % tenToThe8));
}

/// The whole number with its sign, no terminator; gives the end.
char* put(char* out, int value) {
  std::uint32_t magnitude = static_cast<std::uint32_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0 - magnitude;
  }
  return putUnsigned(out, magnitude);
}

char* put(char* out, __int64 value) {
  std::uint64_t magnitude = static_cast<std::uint64_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0 - magnitude;
  }
  return putUnsigned(out, magnitude);
}

/// The eight digits of a fraction without trailing zeros, but for one.
char* putFraction(char* out, std::uint32_t hundredMillionths) {
  if (hundredMillionths == 0) {
    *out = '0';
    return out + 1;
  }
  const std::uint32_t tenThousandths = hundredMillionths / 10'000;  // prices seldom have more digits
  const bool isShort = tenThousandths * 10'000 == hundredMillionths;
  char* end =
      isShort ? putPair(putPair(out, tenThousandths / 100), tenThousandths % 100) : putEight(out, hundredMillionths);
  while (end[-1] == '0') --end;
  return end;
}

__extension__ typedef unsigned __int128 Wide;

/// The magnitude of a double below 2^63 as a count of hundred-millionths, rounded as the C library rounds: exactly,
/// and halves to even.
struct Decimal {
  std::uint64_t whole;
  std::uint32_t hundredMillionths;
};

constexpr int mantissaBits = 52;
constexpr int exponentBias = 1023 + mantissaBits;

Decimal rounded(std::uint64_t bits) {
  const int exponentField = static_cast<int>(bits >> mantissaBits);
  const std::uint64_t leadingBit = std::uint64_t{exponentField != 0} << mantissaBits;
  const std::uint64_t mantissa = (bits & ((std::uint64_t{1} << mantissaBits) - 1)) | leadingBit;
  // The value is mantissa / 2^shift.
  const int shift = exponentBias - (exponentField != 0 ? exponentField : 1);
  if (shift <= 0) return {mantissa << -shift, 0};
  if (shift > 81) return {0, 0};  // below 2^53 / 2^82, less than half of a hundred-millionth

  const std::uint64_t whole = shift > mantissaBits ? 0 : mantissa >> shift;
  const Wide scaled = Wide{mantissa - (whole << (shift & 63))} * tenToThe8;
  const Wide rest = scaled & ((Wide{1} << shift) - 1);
  const Wide half = Wide{1} << (shift - 1);
  std::uint64_t part = static_cast<std::uint64_t>(scaled >> shift);
  part += rest > half || (rest == half && (part & 1) != 0);
  if (part == tenToThe8) return {whole + 1, 0};
  return {whole, static_cast<std::uint32_t>(part)};
}

constexpr std::uint64_t signBit = std::uint64_t{1} << 63;
constexpr std::uint64_t bitsOfTwoTo63 = std::uint64_t{exponentBias + 63 - mantissaBits} << mantissaBits;

/// From 2^63 on every double is a whole number; infinity and not-a-number have no fraction either.
char* putLarge(char* out, double value) {
  char text[doubleTextSize];
  char* end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 0).ptr;
  if (end[-1] >= '0' && end[-1] <= '9') {
    *end++ = '.';
    *end++ = '0';
  }
  std::memcpy(out, text, static_cast<std::size_t>(end - text));
  return out + (end - text);
}

char* put(char* out, double value) {
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
  const std::uint64_t magnitude = bits & ~signBit;
  if (magnitude >= bitsOfTwoTo63) return putLarge(out, value);
  if (bits != magnitude) *out++ = '-';
  const Decimal decimal = rounded(magnitude);
  out = putUnsigned(out, decimal.whole);
  *out++ = '.';
  return putFraction(out, decimal.hundredMillionths);
}

template <int Size, class T>
zkstring asString(T value) {
  char text[Size];
  return zkstring(text, static_cast<unsigned int>(put(text, value) - text));
}

template <class T>
void fill(zkstring& out, T value, int room) {
  char* const text = out.getBuffer(room);
  out.setBufferLength(static_cast<int>(put(text, value) - text));
}

constexpr int smallRoom = 25;
constexpr int largeRoom = 100;
constexpr double longestInLargeRoom = 1e89;  // longer texts are made elsewhere, and take the room that they need

[[noreturn]] void cannotConvert(const char* opening, const char* begin, const char* end, const char* type) {
  const zkstring text(begin, static_cast<unsigned int>(end - begin));
  throwFrom(here, TransformException(opening + ("Cannot convert '" + text) + "' to " + type));
}

/// The four to eight characters at `p` as a word that ends with them and has '0' in front, as memory orders its bytes.
std::uint64_t wordOf(const char* p, std::ptrdiff_t n) {
  std::uint32_t first;
  std::uint32_t last;  // overlaps the first in all that they have in common
  std::memcpy(&first, p, sizeof first);
  std::memcpy(&last, p + n - 4, sizeof last);
  const auto shift = static_cast<unsigned int>(8 * (8 - n));
  const std::uint64_t zeros = 0x3030303030303030 & ((std::uint64_t{1} << shift) - 1);
  return zeros | std::uint64_t{first} << shift | std::uint64_t{last} << 32;
}

/// The four to eight digits at `p` as a number; false if one of them is none. All digits are added up at once: in
/// pairs, then in fours, then in eights.
bool readDigits(const char* p, std::ptrdiff_t n, std::uint32_t& number) {
  if constexpr (std::endian::native != std::endian::little) return false;
  std::uint64_t word = wordOf(p, n);
  // A digit has a 3 in its upper half, and still has when 6 is added.
  const std::uint64_t upper = word & 0xf0f0f0f0f0f0f0f0;
  const std::uint64_t upperOfSum = (word + 0x0606060606060606) & 0xf0f0f0f0f0f0f0f0;
  if ((upper | upperOfSum >> 4) != 0x3333333333333333) return false;
  word = (word & 0x0f0f0f0f0f0f0f0f) * (1 + (10 << 8)) >> 8;
  word = (word & 0x00ff00ff00ff00ff) * (1 + (100 << 16)) >> 16;
  word = (word & 0x0000ffff0000ffff) * (1 + (std::uint64_t{10000} << 32)) >> 32;
  number = static_cast<std::uint32_t>(word);
  return true;
}

constexpr std::uint32_t powersOfTen[] = {1, 10, 100, 1000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000};

/// Up to three digits.
bool readFew(const char* p, const char* end, std::uint32_t& number) {
  number = 0;
  for (; p != end; ++p) {
    const unsigned int digit = static_cast<unsigned int>(*p) - '0';
    if (digit > 9) return false;
    number = number * 10 + digit;
  }
  return true;
}

/// How errors speak of a type: its name, and how the text for an overflow begins.
template <class T>
struct Wording;
template <>
struct Wording<int> {
  static constexpr char type[] = "int";
  static constexpr char wrapped[] = "Integer overflow. ";
};
template <>
struct Wording<__int64> {
  static constexpr char type[] = "long";
  static constexpr char wrapped[] = "Long overflow. ";
};

/// Reads [begin, end), which is not empty, by the rules of `v_atoi` and `v_atol`.
///
/// The value is collected below zero, with wrap-around, and each step looks only at the sign. The digits that fit the
/// type whatever they are need no look, and are taken several at a time.
template <class T>
[[gnu::noinline]] T readAnyWhole(const char* begin, const char* end) {
  using Words = Wording<T>;
  using Unsigned = std::make_unsigned_t<T>;
  constexpr std::ptrdiff_t fitting = std::numeric_limits<T>::digits10;
  const char* p = begin;
  const bool negative = *p == '-';
  if (negative || *p == '+') ++p;
  const char* const unchecked = end - p > fitting ? p + fitting : end;
  Unsigned value = 0;
  while (unchecked - p >= 4) {
    const std::ptrdiff_t n = std::min<std::ptrdiff_t>(unchecked - p, 8);
    std::uint32_t number = 0;
    if (!readDigits(p, n, number)) break;  // the steps below will find out
    value = value * static_cast<Unsigned>(powersOfTen[n]) - number;
    p += n;
  }
  for (; p != end; ++p) {
    const unsigned int digit = static_cast<unsigned int>(*p) - '0';
    if (digit > 9) cannotConvert("", begin, end, Words::type);
    value = value * 10 - digit;
    if (static_cast<T>(value) > 0) cannotConvert(Words::wrapped, begin, end, Words::type);
  }
  if (negative) return static_cast<T>(value);
  value = 0 - value;
  if (static_cast<T>(value) < 0) cannotConvert("Integer overflow. ", begin, end, "int");  // also said of a long
  return static_cast<T>(value);
}

/// The same with a short road, which needs no loop and no registers to save, for numbers of up to eight digits.
template <class T>
T readWhole(const char* begin, const char* end) {
  const bool negative = *begin == '-';
  const char* const p = begin + (negative || *begin == '+');
  const std::ptrdiff_t n = end - p;
  std::uint32_t number = 0;
  const bool isShort = n < 4 ? readFew(p, end, number) : n <= 8 && readDigits(p, n, number);
  if (!isShort) return readAnyWhole<T>(begin, end);
  return negative ? -static_cast<T>(number) : static_cast<T>(number);
}

}  // namespace

char* putText(char* out, int value) { return put(out, value); }
char* putText(char* out, __int64 value) { return put(out, value); }
char* putText(char* out, double value) { return put(out, value); }

void writeNumber(int value, char* out) { *put(out, value) = '\0'; }
void writeNumber(__int64 value, char* out) { *put(out, value) = '\0'; }

int v_atoi(const char* begin, const char* end) {
  if (begin == end) cannotConvert("", begin, end, Wording<int>::type);
  return readWhole<int>(begin, end);
}

__int64 v_atol(const char* begin, const char* end) { return begin != end ? readWhole<__int64>(begin, end) : 0; }

zkstring bigIntegerToString(const BigInteger& value) { return value.toString(); }
void bigIntegerToString(const BigInteger& value, zkstring& out) { value.toString(out); }
zkstring bigDecimalToString(const BigDecimal& value) { return value.toString(); }
void bigDecimalToString(const BigDecimal& value, zkstring& out) { value.toString(out); }
zkstring binaryToString(const Binary& value) { return value.toString(); }
zkstring dateTimeToString(const DateTime& value) { return value.toString(datePattern); }

zkstring intToString(int value) { return asString<intTextSize>(value); }
void intToString(int value, zkstring& out) { fill(out, value, smallRoom); }
void intToString(int value, char* out) { v_itoa(value, out); }

zkstring dlongToString(__int64 value) { return asString<longTextSize>(value); }
void dlongToString(__int64 value, zkstring& out) { fill(out, value, largeRoom); }
void dlongToString(__int64 value, char* out) { v_ltoa(value, out); }

zkstring udlongToString(unsigned long long value) { return dlongToString(static_cast<__int64>(value)); }
void udlongToString(unsigned long long value, char* out) { v_ltoa(static_cast<__int64>(value), out); }

zkstring doubleToString(double value) { return asString<doubleTextSize>(value); }

void doubleToString(double value, zkstring& out) {
  const bool isLong = value > longestInLargeRoom || value < -longestInLargeRoom;
  fill(out, value, isLong ? doubleTextSize : largeRoom);
}

void doubleToString(double value, char* out) { *put(out, value) = '\0'; }

zkstring floatToString(float value) { return doubleToString(double{value}); }
void floatToString(float value, zkstring& out) { doubleToString(double{value}, out); }
void floatToString(float value, char* out) { doubleToString(double{value}, out); }

zkstring boolToString(bool value) { return value ? zkstringliteral("true") : zkstringliteral("false"); }
void boolToString(bool value, zkstring& out) { out = boolToString(value); }

int boolToString(bool value, char* out) {
  const zkstring text = boolToString(value);
  std::memcpy(out, text.data(), text.length() + 1);
  return static_cast<int>(text.length());
}

zkstring charToString(char value) { return zkstring(1, value); }

void charToString(char value, zkstring& out) {
  *out.getBuffer(smallRoom) = value;
  out.setBufferLength(1);
}

int charToString(char value, char* out) {
  out[0] = value;
  out[1] = '\0';
  return 1;
}

}  // namespace zarvik
