#pragma once

#ifdef __SSE2__
#include <emmintrin.h>

namespace zarvik::mapm {

/// Eight times `value`, as a factor for `_mm_mullo_epi16`. Of a constant that it knows GCC makes up to seven shifts and
/// additions where one multiplication will do; so this hides it.
inline __m128i factor(short value) {
  __m128i lanes = _mm_set1_epi16(value);
  asm("" : "+x"(lanes));
  return lanes;
}

}  // namespace zarvik::mapm
#endif
