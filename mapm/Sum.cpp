#include <algorithm>

#include "Carries.h"
#include "DigitShift.h"
#include "Magnitudes.h"
#include "Record.h"

// Addition and subtraction: signs and exponents, and what is short enough for one register.

namespace zarvik::mapm {
namespace {

#ifdef __SSE2__

/// Digits of an operand, with the zeros that its exponent puts in front: one less than the register holds is even, and
/// leaves room for a carry's digit.
constexpr int shortDigits = 30;

/// The first 16 bytes of digits behind `zeros` zeros, fewer than 32.
__m128i behindZeros(const unsigned char* data, int zeros) {
  __extension__ using Bytes = unsigned __int128;
  const Bytes moved = (Bytes{loadLow(data + 8)} << 64 | loadLow(data)) << (zeros / 2 * 8);
  const __m128i bytes = _mm_set_epi64x(static_cast<long long>(moved >> 64), static_cast<long long>(moved));
  return zeros % 2 != 0 ? insertDigit(bytes, 0) : bytes;
}

/// False, with nothing done, if a byte hands on a carry.
template <class Operation>
[[gnu::always_inline]] inline bool combineShort(M_APM_struct* result, __m128i a, __m128i b, long long exponent,
                                                int sign) {
  const __m128i carries = Operation::carries(a, b);
  const auto [bytes, missed] = combine<Operation>(a, b, behindFirst(carries));
  if (_mm_movemask_epi8(missed) != 0) return false;
  const bool carry = (_mm_movemask_epi8(carries) & 1) != 0;
  store(smallRoom(result), carry ? insertDigit(bytes, 1) : bytes);
  normalise(result, 16, exponent + carry, sign);
  return true;
}

/// The same where the operands are not short. `low` comes behind `shift` zeros.
inline bool sumOfShort(M_APM_struct* result, const M_APM_struct* high, const M_APM_struct* low, long long shift,
                       bool difference, int sign) {
  if (high->dataLength > shortDigits || shift + low->dataLength > shortDigits) return false;
  const __m128i a = load(high->data);
  const __m128i b = shift == 0 ? load(low->data) : behindZeros(low->data, static_cast<int>(shift));
  return difference ? combineShort<Subtracter>(result, a, b, high->exponent, sign)
                    : combineShort<Adder>(result, a, b, high->exponent, sign);
}

#else

bool sumOfShort(M_APM_struct*, const M_APM_struct*, const M_APM_struct*, long long, bool, int) { return false; }

#endif

Digits plain(const M_APM_struct* a) { return {a->data, byteCount(a)}; }

/// The digits of `a` behind `shift` zeros, made in `scratch`.
Digits shifted(M_APM_struct* scratch, const M_APM_struct* a, int shift) {
  const int bytes = byteCount(a);
  const int zeros = shift / 2;
  const int all = zeros + bytes + shift % 2;
  unsigned char* const data = makeRoom(scratch, all + 32);
  std::memset(data, 0, static_cast<std::size_t>(zeros));
  if (shift % 2 != 0) {
    insertDigit(data + zeros, a->data, bytes, 0);
  } else {
    std::memcpy(data + zeros, a->data, static_cast<std::size_t>(bytes));
  }
  pad(data, all);
  return {data, all};
}

/// `high` has the greater exponent, or an equal one, and for differences the greater magnitude.
[[gnu::always_inline]] inline void combineLong(M_APM_struct* result, Digits high, Digits low, bool difference,
                                               long long exponent, int sign) {
  const int bytes = std::max(high.bytes, low.bytes);
  unsigned char* const data = makeRoom(result, bytes + 24);
  if (difference) {
    subtractMagnitudes(data, high, low);
    return normalise(result, bytes, exponent, sign);
  }
  const int carry = addMagnitudes(data, high, low) ? 1 : 0;
  finish(result, bytes + carry, exponent + carry, sign);
}

/// The same for exponents that differ. Apart from `sum`, which is quicker without a number of its own.
[[gnu::noinline]] void combineShifted(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b, int shift,
                                      bool difference, int sign) {
  const Temporary scratch;
  combineLong(result, plain(a), shifted(scratch, b, shift), difference, a->exponent, sign);
}

void sum(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b, int signOfB, const char* tooLong) {
  if (signOfB == 0) return m_apm_copy(result, a);
  if (a->sign == 0) {
    m_apm_copy(result, b);
    result->sign = signOfB;
    return;
  }
  const bool difference = a->sign != signOfB;
  int sign = a->sign;
  if (difference ? compareMagnitudes(a, b) < 0 : a->exponent < b->exponent) {
    std::swap(a, b);
    sign = signOfB;
  }
  const long long shift = static_cast<long long>(a->exponent) - b->exponent;
  if (sumOfShort(result, a, b, shift, difference, sign)) return;
  if (shift == 0) return combineLong(result, plain(a), plain(b), difference, a->exponent, sign);
  if (shift + b->dataLength > M_APM_MAX_DIGITS) return refuse(result, tooLong);
  combineShifted(result, a, b, static_cast<int>(shift), difference, sign);
}
}  // namespace
}  // namespace zarvik::mapm

void m_apm_add(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, b->sign, "'m_apm_add', Result too long");
}

void m_apm_subtract(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, -b->sign, "'m_apm_subtract', Result too long");
}
