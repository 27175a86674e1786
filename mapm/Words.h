#pragma once

#include "Lanes.h"
#include "Record.h"

/// Whole numbers as rows of words to the base 10^16, the lowest word first: what products and quotients are computed
/// in.
namespace zarvik::mapm {

using Word = std::uint64_t;
__extension__ typedef unsigned __int128 DoubleWord;

constexpr int wordDigits = 16;
constexpr Word base = 10'000'000'000'000'000;

inline int wordCount(const M_APM_struct* a) { return (byteCount(a) + 7) / 8; }

/// Room for `count` words or double words: on the stack if they are few.
template <class T, int N>
class Buffer {
 public:
  explicit Buffer(int count) : items(count > N ? newItems(count) : small) {}
  ~Buffer() {
    if (items != small) ::operator delete(items);
  }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;
  operator T*() { return items; }

 private:
  static T* newItems(int count) {
    const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(T);
    return static_cast<T*>(allocate(bytes, "'m_apm_words', Out of memory"));
  }

  T small[N];
  T* const items;
};
template <int N>
using WordBuffer = Buffer<Word, N>;
using Words = WordBuffer<40>;

/// Eight base-100 bytes, the first lowest in `bytes`, as one word: neighbours are joined, three times.
inline Word wordOf(std::uint64_t bytes) {
  bytes = (bytes & 0x00FF00FF00FF00FF) * 100 + (bytes >> 8 & 0x00FF00FF00FF00FF);
  bytes = (bytes & 0x0000FFFF0000FFFF) * 10000 + (bytes >> 16 & 0x0000FFFF0000FFFF);
  return (bytes & 0xFFFFFFFF) * 100000000 + (bytes >> 32);
}

#ifdef __SSE2__

/// Two words as sixteen base-100 bytes: divided by 10^8, and from there on all parts at once by 10^4 and 100.
inline void storeWords(unsigned char* out, Word first, Word second) {
  const auto eightDigits = [](Word word) {
    const Word top = word / 100000000;
    return _mm_set_epi64x(static_cast<long long>(word - top * 100000000), static_cast<long long>(top));
  };
  const auto fourDigits = [](__m128i eights) {
    const __m128i top = _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(3518437209)), 45);
    const __m128i rest = _mm_sub_epi64(eights, _mm_mul_epu32(top, _mm_set1_epi64x(10000)));
    return _mm_or_si128(top, _mm_slli_epi64(rest, 32));
  };
  const __m128i fours = _mm_packs_epi32(fourDigits(eightDigits(first)), fourDigits(eightDigits(second)));
  const __m128i top = _mm_srli_epi16(_mm_mulhi_epu16(fours, _mm_set1_epi16(5243)), 3);
  const __m128i bytes = _mm_sub_epi16(_mm_slli_epi16(fours, 8), _mm_mullo_epi16(top, factor(25599)));
  store(out, bytes);  // rest * 256 + top in each lane
}

#else

/// Two words as sixteen base-100 bytes.
inline void storeWords(unsigned char* out, Word first, Word second) {
  const auto fourBytes = [](Word eightDigits) {
    const Word top = eightDigits / 10000;
    const Word fours = top | (eightDigits - top * 10000) << 32;
    const Word hundreds = (fours * 5243 >> 19) & 0x0000007F0000007F;
    const Word bytes = hundreds | (fours - hundreds * 100) << 8;
    return (bytes | bytes >> 16) & 0xFFFFFFFF;
  };
  const auto eightBytes = [&](Word word) { return fourBytes(word / 100000000) | fourBytes(word % 100000000) << 32; };
  storeLow(out, eightBytes(first));
  storeLow(out + 8, eightBytes(second));
}

#endif

#ifdef __SSE2__

/// Sixteen base-100 bytes, the first lowest, as two words, the first one low: neighbours are joined in both at once.
inline __m128i twoWordsOf(__m128i pairs) {
  const __m128i first = _mm_mullo_epi16(_mm_and_si128(pairs, _mm_set1_epi16(0xFF)), factor(100));
  const __m128i fours = _mm_add_epi16(first, _mm_srli_epi16(pairs, 8));
  const __m128i eights = _mm_madd_epi16(fours, _mm_set1_epi32(0x00012710));  // 10000 and 1
  return _mm_add_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(100000000)), _mm_srli_epi64(eights, 32));
}

#endif

/// The digits of `a` as a fraction: its value is words / base^count * 10^exponent.
inline void toWords(Word* out, const M_APM_struct* a, int count) {
  int i = 0;
#ifdef __SSE2__
  for (; i + 2 <= count; i += 2) {
    const __m128i words = twoWordsOf(load(a->data + 8 * i));
    store(out + count - 2 - i, _mm_shuffle_epi32(words, 0x4E));
  }
#endif
  for (; i < count; ++i) out[count - 1 - i] = wordOf(loadLow(a->data + 8 * i));
}

/// The product of the first words of both.
inline DoubleWord firstProduct(const M_APM_struct* a, const M_APM_struct* b) {
#ifdef __SSE2__
  const auto half = [](const M_APM_struct* x) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(x->data)); };
  const __m128i words = twoWordsOf(_mm_unpacklo_epi64(half(a), half(b)));
  const auto low = static_cast<Word>(_mm_cvtsi128_si64(words));
  return DoubleWord{low} * static_cast<Word>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(words, words)));
#else
  return DoubleWord{wordOf(loadLow(a->data))} * wordOf(loadLow(b->data));
#endif
}

/// sign * words / base^count * 10^exponent
inline void fromWords(M_APM_struct* result, const Word* words, int count, long long exponent, int sign) {
  int low = 0;
  while (low < count - 1 && words[low] == 0) ++low;
  unsigned char* data = makeRoom(result, 8 * (count - low));
  int i = count - 1;
  for (; i > low; i -= 2, data += 16) storeWords(data, words[i], words[i - 1]);
  if (i == low) storeWords(data, words[low], 0);
  normalise(result, 8 * (count - low), exponent, sign);
}

/// value / base or one less, for value < 2^115: the top 63 bits times the base's reciprocal are 0.96 too low at most.
inline Word estimateByBase(DoubleWord value) {
  constexpr int shift = 52;
  constexpr Word reciprocal = static_cast<Word>((DoubleWord{1} << (64 + shift)) / base);
  const Word top = (static_cast<Word>(value >> 64) << (64 - shift)) + (static_cast<Word>(value) >> shift);
  return static_cast<Word>(DoubleWord{reciprocal} * top >> 64);
}

/// A sum of products below 2^115 and the carry of the one before become a word; the carry to the next one is returned.
/// The slow division does not wait for the carry, and what it may lack the quick one makes up for.
inline Word carryOn(DoubleWord column, Word carry, Word& out) {
  const Word quotient = estimateByBase(column);
  const Word rest = static_cast<Word>(column) - quotient * base + carry;
  const Word more = rest / base;
  out = rest - more * base;
  return quotient + more;
}

/// out = a * b in na + nb words; `out` is neither operand. Both counts are at least 1.
void multiplyWords(Word* out, const Word* a, int na, const Word* b, int nb);

/// The same by convolution, for nb <= longestConvolution.
void convolveWords(Word* out, const Word* a, int na, const Word* b, int nb);
constexpr int longestConvolution = 1 << 19;

/// quotient = numerator / divisor, cut, in n - nd + 1 words; `numerator` of n + 1 words, the top one 0 or so small
/// that the quotient fits, is used up. The divisor's top word is at least base / 10, and n >= nd.
void divideWords(Word* quotient, Word* numerator, int n, const Word* divisor, int nd);

/// quotient = base^(nd + k) / divisor, cut, in k + 1 words. The divisor's top word is at least base / 10.
void reciprocalWords(Word* quotient, int k, const Word* divisor, int nd);

int compareWords(const Word* a, const Word* b, int n);       ///< -1, 0 or 1
Word addWords(Word* a, int na, const Word* b, int nb);       ///< a += b for na >= nb; the carry
Word subtractWords(Word* a, int na, const Word* b, int nb);  ///< a -= b for na >= nb; the borrow

}  // namespace zarvik::mapm
