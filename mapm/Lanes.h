#pragma once

#ifdef __SSE2__
#include <emmintrin.h>
#ifdef __SSSE3__
#include <tmmintrin.h>
#endif

// Sixteen base-100 bytes in one register.

namespace zarvik::mapm {

inline __m128i load(const void* bytes) { return _mm_loadu_si128(static_cast<const __m128i*>(bytes)); }
inline void store(void* out, __m128i bytes) { _mm_storeu_si128(static_cast<__m128i*>(out), bytes); }

/// Eight times `value`, as a factor for `_mm_mullo_epi16`. Of a constant that it knows GCC makes up to seven shifts and
/// additions where one multiplication will do; so this hides it.
inline __m128i factor(short value) {
  __m128i lanes = _mm_set1_epi16(value);
  asm("" : "+x"(lanes));
  return lanes;
}

inline __m128i behindFirst(__m128i bytes) { return _mm_srli_si128(bytes, 1); }  ///< all bytes but the first
inline __m128i behindFirst(__m128i bytes, __m128i next) {                       ///< and the first one of `next`
#ifdef __SSSE3__
  return _mm_alignr_epi8(next, bytes, 1);
#else
  return _mm_or_si128(behindFirst(bytes), _mm_slli_si128(next, 15));
#endif
}

/// Of each byte. A tenth of the pair serves the second byte: what the first one adds does not reach its tens.
inline __m128i tensOf(__m128i pairs) {
  const __m128i tenth = _mm_set1_epi16(6554);  // of 2^16
  const __m128i first = _mm_mulhi_epu16(_mm_and_si128(pairs, _mm_set1_epi16(0xFF)), tenth);
  const __m128i second = _mm_and_si128(_mm_mulhi_epu16(pairs, tenth), _mm_set1_epi16(-0x100));
  return _mm_or_si128(first, second);
}

/// Each byte's digits: the tens as units, and the units as tens. The bytes may go up to 199, and their tens to 19.
struct SwappedDigits {
  __m128i tens;
  __m128i units;
};
inline SwappedDigits swapDigits(__m128i pairs, __m128i ten) {  // products of digits keep to their bytes
  const __m128i tens = tensOf(pairs);
  return {tens, _mm_mullo_epi16(_mm_sub_epi8(pairs, _mm_mullo_epi16(tens, ten)), ten)};
}

/// Each byte's units and the tens of the one behind it; the last byte lacks these. `ten` is factor(10).
inline __m128i joinNeighbours(__m128i pairs, __m128i ten) {
  const SwappedDigits digits = swapDigits(pairs, ten);
  return _mm_add_epi8(digits.units, behindFirst(digits.tens));
}

/// All digits moved one place to the back, behind `digit`; the last byte's units are lost.
inline __m128i insertDigit(__m128i pairs, int digit) {
  const SwappedDigits digits = swapDigits(pairs, factor(10));
  const __m128i first = _mm_cvtsi32_si128(10 * digit);
  return _mm_add_epi8(_mm_or_si128(_mm_slli_si128(digits.units, 1), first), digits.tens);
}

}  // namespace zarvik::mapm
#endif
