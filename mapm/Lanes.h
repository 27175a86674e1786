#pragma once

#ifdef __SSE2__
#include <emmintrin.h>

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

/// Of each byte. A tenth of the pair serves the second byte: what the first one adds does not reach its tens.
inline __m128i tensOf(__m128i pairs) {
  const __m128i tenth = _mm_set1_epi16(6554);  // of 2^16
  const __m128i first = _mm_mulhi_epu16(_mm_and_si128(pairs, _mm_set1_epi16(0xFF)), tenth);
  const __m128i second = _mm_and_si128(_mm_mulhi_epu16(pairs, tenth), _mm_set1_epi16(-0x100));
  return _mm_or_si128(first, second);
}

}  // namespace zarvik::mapm
#endif
