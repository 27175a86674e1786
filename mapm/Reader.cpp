#include <algorithm>
#include <cstdio>

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

void storeHalf(unsigned char* bytes, std::uint32_t word) {
  if (std::endian::native != std::endian::little) word = __builtin_bswap32(word);
  std::memcpy(bytes, &word, sizeof word);
}

/// Packs `count` digits, two to a byte and with a 0 added for an odd one.
void pack(unsigned char* out, const char* text, std::size_t count) {
  for (; count >= 8; text += 8, count -= 8, out += 4) storeHalf(out, pairs(loadLow(text)));
  char rest[8] = {'0', '0', '0', '0', '0', '0', '0', '0'};
  std::copy_n(text, count, rest);
  if (count != 0) storeHalf(out, pairs(loadLow(rest)));  // four bytes at most, so within the padding
}

/// The first character that is no digit.
const char* behindDigits(const char* text, const char* end) {
  while (end - text >= 8 && areDigits(loadLow(text))) text += 8;
  while (text != end && *text >= '0' && *text <= '9') ++text;
  return text;
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

/// Packs the digits before and behind the point as if they stood together; `out` has room for `count` and padding.
void packAround(unsigned char* out, const char* begin, const char* point, const char* end) {
  const std::size_t before = static_cast<std::size_t>(point - begin);
  const std::size_t behind = static_cast<std::size_t>(end - point - 1);
  pack(out, begin, before);
  out += before / 2;
  if (before % 2 == 0) return pack(out, point + 1, behind);
  if (behind == 0) return;
  *out = static_cast<unsigned char>(*out + (point[1] - '0'));  // shares a byte with the digit before the point
  pack(out + 1, point + 2, behind - 1);
}

void readUnsigned(M_APM_struct* result, const char* text, const char* end, int sign) {
  const char* point = behindDigits(text, end);
  const char* mark = point;
  if (point != end && *point == '.') mark = behindDigits(point + 1, end);
  const bool ended = mark == end || *mark == 0;
  if (!ended && *mark != 'e' && *mark != 'E') return refuse(result, nonDigit);

  while (text != point && *text == '0') ++text;
  long long exponent = (ended ? 0 : readExponent(mark + 1, end)) + (point - text);
  if (text == point) {  // nothing before the point but zeros
    text = std::min(point + 1, mark);
    while (text != mark && *text == '0') ++text;
    exponent -= std::max<long long>(0, text - point - 1);
    point = mark;
  }
  const long long count = mark - text - (point != mark ? 1 : 0);
  if (count == 0) return setZero(result);
  if (count > M_APM_MAX_DIGITS) return refuse(result, "'m_apm_set_string', Number too long");

  const int bytes = bytesOf(static_cast<int>(count));
  unsigned char* const data = makeRoom(result, bytes + 16);
  if (point == mark) {
    pack(data, text, static_cast<std::size_t>(count));
  } else {
    packAround(data, text, point, mark);
  }
  pad(data, bytes);
  normalise(result, bytes, exponent, sign);
}
}  // namespace
}  // namespace zarvik::mapm

void m_apm_set_string(M_APM_struct* result, const char* text, std::size_t length) {
  const char* const end = text + length;
  while (text != end && (*text == ' ' || *text == '\t')) ++text;
  if (text == end || *text == 0) return zarvik::mapm::setZero(result);
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
  zarvik::mapm::pad(data, bytes);
  zarvik::mapm::normalise(result, bytes, 2 * bytes, value < 0 ? -1 : 1);
}

void m_apm_set_double(M_APM_struct* result, double value) {
  char text[32];
  const int length = std::snprintf(text, sizeof text, "%.14E", value);
  std::replace(text, text + length, ',', '.');  // whatever the locale's point
  m_apm_set_string(result, text, static_cast<std::size_t>(length));
}
