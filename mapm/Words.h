#pragma once

#include <memory>

#include "Record.h"

/// Whole numbers as rows of words to the base 10^16, the lowest word first: what products and quotients are computed
/// in.
namespace zarvik::mapm {

using Word = std::uint64_t;
__extension__ typedef unsigned __int128 DoubleWord;

constexpr int wordDigits = 16;
constexpr Word base = 10'000'000'000'000'000;

inline int wordCount(const M_APM_struct* a) { return (byteCount(a) + 7) / 8; }

/// Room for `count` words: on the stack if they are few.
template <int N>
class WordBuffer {
 public:
  explicit WordBuffer(int count) {
    if (count > N) large = std::make_unique_for_overwrite<Word[]>(static_cast<std::size_t>(count));
    words = large ? large.get() : small;
  }
  operator Word*() { return words; }

 private:
  Word small[N];
  std::unique_ptr<Word[]> large;
  Word* words;
};
using Words = WordBuffer<40>;

/// Eight base-100 bytes, the first lowest in `bytes`, as one word: neighbours are joined, three times.
inline Word wordOf(std::uint64_t bytes) {
  bytes = (bytes & 0x00FF00FF00FF00FF) * 100 + (bytes >> 8 & 0x00FF00FF00FF00FF);
  bytes = (bytes & 0x0000FFFF0000FFFF) * 10000 + (bytes >> 16 & 0x0000FFFF0000FFFF);
  return (bytes & 0xFFFFFFFF) * 100000000 + (bytes >> 32);
}

/// The way back.
inline std::uint64_t bytesOfWord(Word word) {
  const auto fourBytes = [](std::uint64_t eight) {
    const std::uint64_t top = eight * 3518437209U >> 45;  // by 10000
    const std::uint64_t fours = top | (eight - top * 10000) << 32;
    const std::uint64_t hundreds = (fours * 5243 >> 19) & 0x0000007F0000007F;
    const std::uint64_t bytes = hundreds | (fours - hundreds * 100) << 8;
    return (bytes | bytes >> 16) & 0xFFFFFFFF;
  };
  return fourBytes(word / 100000000) | fourBytes(word % 100000000) << 32;
}

/// The digits of `a` as a fraction: its value is words / base^count * 10^exponent.
inline void toWords(Word* out, const M_APM_struct* a, int count) {
  for (int i = 0; i < count; ++i) out[count - 1 - i] = wordOf(loadLow(a->data + 8 * i));
}

/// sign * words / base^count * 10^exponent
inline void fromWords(M_APM_struct* result, const Word* words, int count, long long exponent, int sign) {
  int low = 0;
  while (low < count - 1 && words[low] == 0) ++low;
  unsigned char* const data = makeRoom(result, 8 * (count - low));
  for (int i = low; i < count; ++i) storeLow(data + 8 * (count - 1 - i), bytesOfWord(words[i]));
  normalise(result, 8 * (count - low), exponent, sign);
}

/// value / base, with the rest in `rest`, for value < 2^64 * base: by the base's reciprocal instead of a division
/// (Moeller and Granlund, "Improved division by invariant integers").
inline Word divideByBase(DoubleWord value, Word& rest) {
  constexpr int shift = 10;
  constexpr Word divisor = base << shift;
  static_assert(divisor >> 63 == 1);
  constexpr Word reciprocal = static_cast<Word>(~DoubleWord{0} / divisor);  // less 2^64
  value <<= shift;
  const Word low = static_cast<Word>(value);
  DoubleWord q = DoubleWord{reciprocal} * static_cast<Word>(value >> 64) + value;
  Word quotient = static_cast<Word>(q >> 64) + 1;
  Word r = low - quotient * divisor;
  if (r > static_cast<Word>(q)) {
    --quotient;
    r += divisor;
  }
  if (r >= divisor) [[unlikely]] {
    ++quotient;
    r -= divisor;
  }
  rest = r >> shift;
  return quotient;
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
