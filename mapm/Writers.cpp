#include <algorithm>
#include <charconv>
#include <cstdlib>

#include "Lanes.h"
#include "Record.h"

// The text forms: fixed point, whole number, scientific.

namespace zarvik::mapm {
namespace {

constexpr int blockDigits = 32;

#ifdef __SSE2__

/// The 32 digits of 16 base-100 bytes.
void putBlock(char* out, const unsigned char* bytes) {
  const __m128i pairs = load(bytes);
  const __m128i tens = tensOf(pairs);
  const __m128i units = _mm_sub_epi8(pairs, _mm_mullo_epi16(tens, factor(10)));
  const __m128i zeros = _mm_set1_epi8('0');
  store(out, _mm_add_epi8(_mm_unpacklo_epi8(tens, units), zeros));
  store(out + 16, _mm_add_epi8(_mm_unpackhi_epi8(tens, units), zeros));
}

#else

/// The 32 digits of 16 base-100 bytes.
void putBlock(char* out, const unsigned char* bytes) {
  for (int i = 0; i < 16; ++i) {
    out[2 * i] = static_cast<char>('0' + bytes[i] / 10);
    out[2 * i + 1] = static_cast<char>('0' + bytes[i] % 10);
  }
}

#endif

/// Writes the digits from `from` to before `to`, both within the number: blocks may go beyond the number, and are cut.
char* putDigits(char* out, const M_APM_struct* a, int from, int to) {
  while (from < to) {
    char block[blockDigits];
    putBlock(block, a->data + from / 2);
    const int skipped = from % 2;
    const int count = std::min(blockDigits - skipped, to - from);
    std::memcpy(out, block + skipped, static_cast<std::size_t>(count));
    from += count;
    out += count;
  }
  return out;
}

char* putZeros(char* out, long long count) { return count > 0 ? std::fill_n(out, count, '0') : out; }

/// Digits before the point: 0 or the digits with zeros up to the point.
char* putWhole(char* out, const M_APM_struct* a) {
  if (a->exponent <= 0) return putZeros(out, 1);
  out = putDigits(out, a, 0, std::min(a->dataLength, a->exponent));
  return putZeros(out, static_cast<long long>(a->exponent) - a->dataLength);
}

char* putDecimals(char* out, const M_APM_struct* a, long long count) {
  const long long zeros = std::min<long long>(count, std::max(0LL, -static_cast<long long>(a->exponent)));
  out = putZeros(out, zeros);
  const long long from = std::max(0, a->exponent);
  const long long to = std::min<long long>(a->dataLength, from + count - zeros);
  if (from >= to) return putZeros(out, count - zeros);
  out = putDigits(out, a, static_cast<int>(from), static_cast<int>(to));
  return putZeros(out, count - zeros - (to - from));
}

/// Sets a separator before each group of digits of the whole number that begins at `begin`.
char* group(char* begin, char* end, const M_APM_format& format) {
  const long long separators = (end - begin - 1) / format.group;
  char* const newEnd = end + separators;
  char* to = newEnd;
  for (long long i = 0; i < separators; ++i) {
    end -= format.group;
    to -= format.group;
    std::memmove(to, end, static_cast<std::size_t>(format.group));
    *--to = format.separator;
  }
  return newEnd;
}

bool isGrouped(const M_APM_format& format) { return format.separator != 0 && format.group > 0; }

long long decimalsOf(const M_APM_format& format, const M_APM_struct* a) {
  return format.places >= 0 ? format.places : std::max(1LL, static_cast<long long>(a->dataLength) - a->exponent);
}

std::size_t writeFixPt(char* out, const M_APM_format& format, const M_APM_struct* a) {
  char* const start = out;
  if (a->sign < 0) *out++ = '-';
  char* const whole = out;
  out = putWhole(out, a);
  if (isGrouped(format)) out = group(whole, out, format);
  if (format.places != 0) {
    *out++ = format.point;
    out = putDecimals(out, a, decimalsOf(format, a));
  }
  *out = 0;
  return static_cast<std::size_t>(out - start);
}
}  // namespace
}  // namespace zarvik::mapm

using namespace zarvik::mapm;

long long m_apm_fixpt_length(const M_APM_format& format, const M_APM_struct* a) {
  const long long whole = std::max(1LL, a->exponent + 1LL);  // rounding may add a digit
  const long long separators = isGrouped(format) ? (whole - 1) / format.group : 0;
  const long long decimals = format.places == 0 ? 0 : 1 + decimalsOf(format, a);
  return 1 + whole + separators + decimals;
}

std::size_t m_apm_to_fixpt_stringex(char* out, const M_APM_format& format, const M_APM_struct* a) {
  const long long keep = format.places + a->exponent;
  if (format.places < 0 || keep >= a->dataLength) return writeFixPt(out, format, a);
  const Temporary rounded;
  roundToDigits(rounded, keep, a);
  return writeFixPt(out, format, rounded);
}

std::size_t m_apm_to_integer_string(char* out, const M_APM_struct* a) {
  char* const start = out;
  if (a->sign < 0 && a->exponent > 0) *out++ = '-';
  out = putWhole(out, a);
  *out = 0;
  return static_cast<std::size_t>(out - start);
}

std::size_t m_apm_to_string(char* out, int places, const M_APM_struct* a) {
  if (places >= 0 && places + 1LL < a->dataLength) {
    const Temporary rounded;
    m_apm_round(rounded, places, a);
    return m_apm_to_string(out, places, rounded);
  }
  char* const start = out;
  if (a->sign < 0) *out++ = '-';
  out = putDigits(out, a, 0, 1);
  const int decimals = places >= 0 ? places : std::max(1, a->dataLength - 1);
  if (decimals > 0) *out++ = '.';
  out = putDigits(out, a, 1, a->dataLength);
  out = putZeros(out, decimals - (a->dataLength - 1LL));
  const long long power = a->sign == 0 ? 0 : a->exponent - 1LL;
  *out++ = 'E';
  *out++ = power < 0 ? '-' : '+';
  out = std::to_chars(out, out + 12, power < 0 ? -power : power).ptr;
  *out = 0;
  return static_cast<std::size_t>(out - start);
}

long long m_apm_to_long(const M_APM_struct* a) {
  constexpr long long highest = std::numeric_limits<long long>::max();
  constexpr long long lowest = std::numeric_limits<long long>::min();
  if (a->exponent <= 0) return 0;
  if (a->exponent > 19) return a->sign < 0 ? lowest : highest;
  unsigned long long value = 0;
  for (int i = 0; i < a->exponent; ++i) {  // 19 digits fit
    value = value * 10 + static_cast<unsigned>(i < a->dataLength ? digitAt(a, i) : 0);
  }
  if (a->sign < 0) return value > static_cast<unsigned long long>(highest) ? lowest : -static_cast<long long>(value);
  return value > static_cast<unsigned long long>(highest) ? highest : static_cast<long long>(value);
}

double m_apm_to_double(const M_APM_struct* a) {
  char text[64];
  m_apm_to_string(text, 30, a);
  return std::strtod(text, nullptr);
}
