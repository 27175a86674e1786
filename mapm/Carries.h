#pragma once

#include "Lanes.h"

#ifdef __SSE2__

// Sixteen bytes of two numbers in base 100, added or subtracted: first byte by byte, then with the carries that the
// bytes behind give out as they stand. A byte that hands on a carry which came to it is seldom, and shows.

namespace zarvik::mapm {

/// a + b
struct Adder {
  static __m128i raw(__m128i a, __m128i b) { return _mm_add_epi8(a, b); }
  static __m128i carries(__m128i sum) { return _mm_cmpgt_epi8(sum, _mm_set1_epi8(99)); }
  static __m128i carries(__m128i a, __m128i b) { return carries(_mm_adds_epi8(a, b)); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_sub_epi8(raw, in); }
  static __m128i settle(__m128i sum) { return _mm_min_epu8(sum, _mm_sub_epi8(sum, _mm_set1_epi8(100))); }
  static __m128i missed(__m128i out, __m128i in) { return _mm_add_epi8(out, in); }  // below 0 where 99 became 0
  static constexpr int step = 1;
  static constexpr int last = 99;
};

/// a - b
struct Subtracter {
  static __m128i raw(__m128i a, __m128i b) { return _mm_sub_epi8(a, b); }
  static __m128i carries(__m128i a, __m128i b) { return _mm_cmpgt_epi8(b, a); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_add_epi8(raw, in); }
  static __m128i settle(__m128i sum) { return _mm_min_epu8(sum, _mm_add_epi8(sum, _mm_set1_epi8(100))); }
  static __m128i missed(__m128i out, __m128i in) {  // above 127 where 0 became 99
    return _mm_add_epi8(out, _mm_sub_epi8(_mm_set1_epi8(28), in));
  }
  static constexpr int step = -1;
  static constexpr int last = 0;
};

/// Sixteen bytes of a sum or difference; the high bits of `missed` tell where a carry was handed on.
struct Combined {
  __m128i bytes;
  __m128i missed;
};
template <class Operation>
Combined settled(__m128i raw, __m128i carriesIn) {
  const __m128i bytes = Operation::settle(Operation::apply(raw, carriesIn));
  return {bytes, Operation::missed(bytes, carriesIn)};
}
template <class Operation>
Combined combine(__m128i a, __m128i b, __m128i carriesIn) {
  return settled<Operation>(Operation::raw(a, b), carriesIn);
}

}  // namespace zarvik::mapm
#endif
