#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>

#include "Record.h"

// The reader of number texts: blanks, a sign, digits with a point anywhere, an exponent behind 'e'.

namespace zarvik::mapm {
namespace {

constexpr char nonDigit[] = "'m_apm_set_string', Non-digit char found in parse";

bool areDigits(std::uint64_t chars) {
  constexpr std::uint64_t highHalf = 0xF0F0F0F0F0F0F0F0;
  constexpr std::uint64_t zeros = 0x3030303030303030;
  return (chars & highHalf) == zeros && ((chars + 0x0606060606060606) & highHalf) == zeros;
}

/// The eight digits of a word, first lowest, as four base-100 bytes.
std::uint32_t pairs(std::uint64_t chars) {
  chars -= 0x3030303030303030;
  chars = (chars * 10 + (chars >> 8)) & 0x00FF00FF00FF00FF;
  chars = (chars | chars >> 8) & 0x0000FFFF0000FFFF;
  return static_cast<std::uint32_t>(chars | chars >> 16);
}

/// Packs `count` characters, two to a byte and with a zero added to an odd one; false if one is no digit.
bool pack(unsigned char* out, const char* text, std::size_t count) {
  std::size_t i = 0;
  for (; i + 8 <= count; i += 8) {
    const std::uint64_t chars = loadLow(text + i);
    if (!areDigits(chars)) return false;
    const std::uint32_t bytes = pairs(chars);
    for (int k = 0; k < 4; ++k) out[i / 2 + static_cast<std::size_t>(k)] = static_cast<unsigned char>(bytes >> 8 * k);
  }
  if (i == count) return true;
  char rest[8] = {'0', '0', '0', '0', '0', '0', '0', '0'};
  std::copy(text + i, text + count, rest);
  const std::uint64_t chars = loadLow(rest);
  if (!areDigits(chars)) return false;
  const std::uint32_t bytes = pairs(chars);
  for (; i < count; i += 2) out[i / 2] = static_cast<unsigned char>(bytes >> 4 * (i % 8));
  return true;
}

bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// As `atoi` reads, but held within bounds far beyond those of an exponent.
long long readExponent(const char* text, const char* end) {
  constexpr long long bound = 100'000'000'000;
  while (text != end && isSpace(*text)) ++text;
  const bool negative = text != end && *text == '-';
  if (text != end && (*text == '-' || *text == '+')) ++text;
  long long value = 0;
  for (; text != end && *text >= '0' && *text <= '9'; ++text) value = std::min(bound, value * 10 + (*text - '0'));
  return negative ? -value : value;
}

/// Digits without the point, in one piece: where they lie if there is no point, else in a buffer.
class Digits {
 public:
  Digits(const char* begin, const char* point, const char* end)
      : first(begin), count(static_cast<std::size_t>(end - begin)) {
    if (point == end) return;
    --count;
    char* const buffer = count <= sizeof small ? small : (large = std::make_unique_for_overwrite<char[]>(count)).get();
    std::copy(point + 1, end, std::copy(begin, point, buffer));
    first = buffer;
  }

  const char* first;
  std::size_t count;

 private:
  char small[256];
  std::unique_ptr<char[]> large;
};

const char* findAny(const char* begin, const char* end, char lower, char upper) {
  const auto find = [begin](const char* to, char c) {
    const void* const found = std::memchr(begin, c, static_cast<std::size_t>(to - begin));
    return found != nullptr ? static_cast<const char*>(found) : to;
  };
  return begin == end ? end : find(find(end, lower), upper);
}

void readUnsigned(M_APM_struct* result, const char* text, const char* end, int sign) {
  const char* const mark = findAny(text, end, 'e', 'E');
  long long exponent = mark != end ? readExponent(mark + 1, end) : 0;
  const char* const point = findAny(text, mark, '.', '.');
  exponent += point - text;

  const Digits digits(text, point, mark);
  std::size_t zeros = 0;
  while (zeros < digits.count && digits.first[zeros] == '0') ++zeros;
  const std::size_t count = digits.count - zeros;
  if (count == 0) return setZero(result);
  if (count > static_cast<std::size_t>(M_APM_MAX_DIGITS)) return refuse(result, "'m_apm_set_string', Number too long");

  const int bytes = bytesOf(static_cast<int>(count));
  if (!pack(makeRoom(result, bytes), digits.first + zeros, count)) return refuse(result, nonDigit);
  normalise(result, bytes, exponent - static_cast<long long>(zeros), sign);
}
}  // namespace
}  // namespace zarvik::mapm

void m_apm_set_string(M_APM_struct* result, const char* text, std::size_t length) {
  const char* end = text + length;
  if (const void* const nul = length != 0 ? std::memchr(text, 0, length) : nullptr) end = static_cast<const char*>(nul);
  while (text != end && (*text == ' ' || *text == '\t')) ++text;
  if (text == end) return zarvik::mapm::setZero(result);
  const int sign = *text == '-' ? -1 : 1;
  if (*text == '-' || *text == '+') ++text;
  zarvik::mapm::readUnsigned(result, text, end, sign);
}

void m_apm_set_long(M_APM_struct* result, long long value) {
  constexpr int bytes = 10;
  unsigned char* const data = zarvik::mapm::makeRoom(result, bytes);
  unsigned long long rest =
      value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
  for (int i = bytes; i-- > 0; rest /= 100) data[i] = static_cast<unsigned char>(rest % 100);
  zarvik::mapm::normalise(result, bytes, 2 * bytes, value < 0 ? -1 : 1);
}

void m_apm_set_double(M_APM_struct* result, double value) {
  char text[32];
  const int length = std::snprintf(text, sizeof text, "%.14E", value);
  std::replace(text, text + length, ',', '.');  // whatever the locale's point
  m_apm_set_string(result, text, static_cast<std::size_t>(length));
}
