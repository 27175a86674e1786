#include <algorithm>
#include <bit>

#include "Words.h"

// Long products: the words are convolved modulo two primes by number-theoretic transforms, and each column is put
// together from its two remainders. Exact as long as the columns stay below the product of the primes, 2^126.

namespace zarvik::mapm {
namespace {

/// Arithmetic modulo a prime below 2^63 in Montgomery's form: `times` gives a * b / 2^64.
template <Word p, Word generator>
struct Field {
  static constexpr Word prime = p;

  static constexpr Word inverseOfPrime() {  // modulo 2^64, by Newton's iteration
    Word x = p;
    for (int i = 0; i < 6; ++i) x *= 2 - p * x;
    return x;
  }
  static constexpr Word times(Word a, Word b) {
    constexpr Word inverse = inverseOfPrime();
    const DoubleWord product = DoubleWord{a} * b;
    const Word factor = static_cast<Word>(product) * inverse;
    const Word high = static_cast<Word>(product >> 64);
    const Word low = static_cast<Word>(DoubleWord{factor} * p >> 64);
    return high - low + (high < low ? p : 0);
  }
  static constexpr Word plus(Word a, Word b) { return a + b >= p ? a + b - p : a + b; }
  static constexpr Word minus(Word a, Word b) { return a - b + (a < b ? p : 0); }

  static constexpr Word one = static_cast<Word>((DoubleWord{1} << 64) % p);
  static constexpr Word square = static_cast<Word>(DoubleWord{one} * one % p);  ///< turns a number into its form
  static constexpr Word formOf(Word a) { return times(a, square); }

  static constexpr Word power(Word a, Word exponent) {
    Word result = one;
    for (; exponent != 0; exponent >>= 1, a = times(a, a)) {
      if (exponent % 2 != 0) result = times(result, a);
    }
    return result;
  }
  /// A root of unity of the order n, a power of two up to 2^32.
  static constexpr Word root(Word n) { return power(formOf(generator), (p - 1) / n); }
};
using First = Field<9223371938070528001U, 19>;
using Second = Field<9223372006790004737U, 3>;

/// The powers that the stages need, each stage's in one run: those of the root of order 2h at h to 2h - 1.
template <class F>
void makeTable(Word* table, int n) {
  const int half = n / 2;
  const Word root = F::root(static_cast<Word>(n));
  Word value = F::one;
  for (int i = 0; i < half; ++i, value = F::times(value, root)) table[half + i] = value;
  for (int i = half - 1; i > 0; --i) table[i] = table[2 * i];
}

/// From natural to bit-reversed order.
template <class F>
void transform(Word* x, int n, const Word* table) {
  for (int h = n / 2; h > 0; h /= 2) {
    for (Word* block = x; block != x + n; block += 2 * h) {
      for (int i = 0; i < h; ++i) {
        const Word a = block[i];
        const Word b = block[h + i];
        block[i] = F::plus(a, b);
        block[h + i] = F::times(F::minus(a, b), table[h + i]);
      }
    }
  }
}

/// From bit-reversed to natural order, but for the places 1 to n - 1, which come out the other way round.
template <class F>
void transformBack(Word* x, int n, const Word* table) {
  for (int h = 1; h < n; h *= 2) {
    for (Word* block = x; block != x + n; block += 2 * h) {
      for (int i = 0; i < h; ++i) {
        const Word a = block[i];
        const Word b = F::times(block[h + i], table[h + i]);
        block[i] = F::plus(a, b);
        block[h + i] = F::minus(a, b);
      }
    }
  }
}

/// x = the convolution of a and b modulo the prime. `x`, `y` and `table` have n words; a is b for a square.
template <class F>
void convolve(Word* x, Word* y, Word* table, int n, const Word* a, int na, const Word* b, int nb) {
  makeTable<F>(table, n);
  std::fill(std::copy_n(a, na, x), x + n, Word{0});
  transform<F>(x, n, table);
  const bool isSquare = a == b && na == nb;
  if (!isSquare) {
    std::fill(std::copy_n(b, nb, y), y + n, Word{0});
    transform<F>(y, n, table);
  }
  const Word inverseOfN = F::power(F::formOf(static_cast<Word>(n)), F::prime - 2);  // times 2^64
  const Word scale = F::times(inverseOfN, F::square);
  for (int i = 0; i < n; ++i) x[i] = F::times(F::times(x[i], isSquare ? x[i] : y[i]), scale);
  transformBack<F>(x, n, table);
}

/// The number below both primes' product with these remainders.
DoubleWord join(Word first, Word second) {
  constexpr Word inverse = Second::power(Second::formOf(First::prime), Second::prime - 2);
  return DoubleWord{Second::times(Second::minus(second, first), inverse)} * First::prime + first;
}
}  // namespace

void convolveWords(Word* out, const Word* a, int na, const Word* b, int nb) {
  const int n = static_cast<int>(std::bit_ceil(static_cast<unsigned int>(na + nb)));
  WordBuffer<1> room(4 * n);
  Word* const first = room;
  Word* const second = first + n;
  convolve<First>(first, second + n, second + 2 * n, n, a, na, b, nb);
  convolve<Second>(second, second + n, second + 2 * n, n, a, na, b, nb);
  DoubleWord column = 0;
  for (int k = 0; k < na + nb; ++k) {
    const int place = (n - k) % n;
    column += join(first[place], second[place]);
    out[k] = static_cast<Word>(column % base);
    column /= base;
  }
}

}  // namespace zarvik::mapm
