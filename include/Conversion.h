#pragma once

#include <array>
#include <cstddef>
#include <cstring>

#include "zkstring.h"

namespace zarvik {

class BigDecimal;
class BigInteger;
class Binary;
class DateTime;

/// The text form of every plain value, and the readers of whole numbers. Everything that prints a value comes here,
/// so that all texts in the system agree; `Parsing` reads the other types back.
///
/// A producer comes in up to three forms: giving a string of exactly the text's size; filling a string, in its own
/// block when nobody shares it and it has room; and writing into the caller's memory, with a terminator behind.
/// Nothing here allocates but for the strings, keeps state or looks at the locale.

constexpr int intTextSize = 12;      ///< room for any text of `intToString` and its terminator
constexpr int longTextSize = 21;     ///< room for any text of `dlongToString` and its terminator
constexpr int doubleTextSize = 320;  ///< room for any text of `doubleToString` and its terminator: 1e308 takes 312

zkstring intToString(int value);
void intToString(int value, zkstring& out);
void intToString(int value, char* out);  ///< at most `intTextSize` bytes

zkstring dlongToString(__int64 value);
void dlongToString(__int64 value, zkstring& out);
void dlongToString(__int64 value, char* out);  ///< at most `longTextSize` bytes

/// Odd on purpose: the value is taken as signed, so from 2^63 on it prints with a minus sign.
zkstring udlongToString(unsigned long long value);
void udlongToString(unsigned long long value, char* out);  ///< at most `longTextSize` bytes

/// "%.8f" as the C library prints it, to the last digit, then without trailing zeros but for one behind the point:
/// 1.5, 5.0, 0.0, 1234.56789, and inf, -inf, nan, -nan.
zkstring doubleToString(double value);
void doubleToString(double value, zkstring& out);
void doubleToString(double value, char* out);  ///< at most `doubleTextSize` bytes, 32 of them below 10^18

zkstring floatToString(float value);  ///< the text of the value as a `double`
void floatToString(float value, zkstring& out);
void floatToString(float value, char* out);  ///< at most 43 bytes

zkstring boolToString(bool value);  ///< "true" or "false"
void boolToString(bool value, zkstring& out);
int boolToString(bool value, char* out);  ///< gives the length; at most 6 bytes

zkstring charToString(char value);
void charToString(char value, zkstring& out);
int charToString(char value, char* out);  ///< gives the length, 1; writes 2 bytes

zkstring bigIntegerToString(const BigInteger& value);
void bigIntegerToString(const BigInteger& value, zkstring& out);
zkstring bigDecimalToString(const BigDecimal& value);
void bigDecimalToString(const BigDecimal& value, zkstring& out);
zkstring binaryToString(const Binary& value);      ///< the bytes as they are, sharing the block
zkstring dateTimeToString(const DateTime& value);  ///< as "MMM dd, yyyy"

/// Plain decimal text with a terminator, at most `intTextSize` or `longTextSize` bytes, and nothing behind it; values
/// from 0 to 99, which most fields hold, take a look-up.
inline void v_itoa(int value, char* out);
inline void v_ltoa(__int64 value, char* out);

/// Read [begin, end) as an optional sign and digits, nothing else. A lone sign is 0. Throw TransformException for any
/// other character, and for most texts out of range, but not for all: the value is collected with wrap-around, as a
/// negative number, and only a wrap that shows in the sign is noticed, so that 9999999999 reads as the `int`
/// 1410065407. An empty range is an error for `v_atoi` and 0 for `v_atol`.
int v_atoi(const char* begin, const char* end);
__int64 v_atol(const char* begin, const char* end);

void writeNumber(int value, char* out);      ///< `v_itoa` but for its short road
void writeNumber(__int64 value, char* out);  ///< `v_ltoa` but for its short road

/// The texts of 0 to 99; a single digit has its terminator behind it.
inline constexpr auto smallNumberTexts = [] {
  std::array<std::array<char, 2>, 100> texts{};
  for (unsigned int i = 0; i < 100; ++i) {
    const char last = static_cast<char>('0' + i % 10);
    if (i < 10) texts[i] = {last, '\0'};
    if (i >= 10) texts[i] = {static_cast<char>('0' + i / 10), last};
  }
  return texts;
}();

inline void writeSmallNumber(std::size_t value, char* out) {
  std::memcpy(out, smallNumberTexts[value].data(), 2);
  out[value < 10 ? 1 : 2] = '\0';  // without a branch, and touching nothing behind the terminator
}

inline void v_itoa(int value, char* out) {
  if (value >= 0 && value < 100) return writeSmallNumber(static_cast<std::size_t>(value), out);
  writeNumber(value, out);
}

inline void v_ltoa(__int64 value, char* out) {
  if (value == static_cast<int>(value)) return v_itoa(static_cast<int>(value), out);
  writeNumber(value, out);
}

}  // namespace zarvik
