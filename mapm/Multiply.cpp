#include <algorithm>

#include "Words.h"

namespace zarvik::mapm {
namespace {

constexpr int karatsubaFrom = 24;     ///< words of both operands; measured
constexpr int convolutionFrom = 250;  ///< words of the shorter operand; measured

/// The sum of a[i] * b[-i].
DoubleWord column(const Word* a, const Word* b, int n) {
  DoubleWord sum = 0;
  for (; n >= 4; n -= 4, a += 4, b -= 4) {
    sum += DoubleWord{a[0]} * b[0];
    sum += DoubleWord{a[1]} * b[-1];
    sum += DoubleWord{a[2]} * b[-2];
    sum += DoubleWord{a[3]} * b[-3];
  }
  for (int i = 0; i < n; ++i) sum += DoubleWord{a[i]} * b[-i];
  return sum;
}

/// Carries the columns on: afterwards each is a word.
void carryColumns(Word* out, const DoubleWord* columns, int n) {
  Word carry = 0;
  for (int k = 0; k < n - 1; ++k) carry = carryOn(columns[k], carry, out[k]);
  out[n - 1] = carry;
}

/// Column by column: a column of up to `convolutionFrom` products and the carry fits into a double word.
void multiplyColumns(Word* out, const Word* a, int na, const Word* b, int nb) {
  Word carry = 0;
  for (int k = 0; k < na + nb - 1; ++k) {
    const int first = std::max(0, k - nb + 1);
    const int last = std::min(k, na - 1);
    carry = carryOn(column(a + first, b + k - first, last - first + 1), carry, out[k]);
  }
  out[na + nb - 1] = carry;
}

/// Column k of n words by n. With n known to the compiler it becomes a run of multiplications without a branch.
template <int n>
DoubleWord fixedColumn(const Word* a, const Word* b, int k) {
  DoubleWord sum = 0;
#pragma GCC unroll 16
  for (int i = 0; i < n; ++i) {
    if (i <= k && k - i < n) sum += DoubleWord{a[i]} * b[k - i];
  }
  return sum;
}

template <int n>
void multiplyFixed(Word* out, const Word* a, const Word* b) {
  Word carry = 0;
#pragma GCC unroll 16
  for (int k = 0; k < 2 * n - 1; ++k) carry = carryOn(fixedColumn<n>(a, b, k), carry, out[k]);
  out[2 * n - 1] = carry;
}

/// The columns of a * b, both of n words, without carries: 2n - 1 of them. By three products of halves (Karatsuba);
/// the sums of halves need no carries either, since words have room above the base. `sums` and `scratch` have 4n
/// places.
void karatsuba(DoubleWord* out, const Word* a, const Word* b, int n, Word* sums, DoubleWord* scratch) {
  if (n == 16) {
#pragma GCC unroll 32
    for (int k = 0; k < 31; ++k) out[k] = fixedColumn<16>(a, b, k);
    return;
  }
  if (n < karatsubaFrom) {
    for (int k = 0; k < 2 * n - 1; ++k) {
      const int first = std::max(0, k - n + 1);
      out[k] = column(a + first, b + k - first, k - 2 * first + 1);
    }
    return;
  }
  const int low = (n + 1) / 2;
  const int high = n - low;
  Word* const sumA = sums;
  Word* const sumB = sumA + low;
  for (int i = 0; i < low; ++i) {
    sumA[i] = a[i] + (i < high ? a[low + i] : 0);
    sumB[i] = b[i] + (i < high ? b[low + i] : 0);
  }
  DoubleWord* const middle = scratch;
  Word* const moreSums = sumB + low;
  DoubleWord* const moreScratch = middle + 2 * low;
  karatsuba(middle, sumA, sumB, low, moreSums, moreScratch);
  karatsuba(out, a, b, low, moreSums, moreScratch);
  karatsuba(out + 2 * low, a + low, b + low, high, moreSums, moreScratch);
  out[2 * low - 1] = 0;
  for (int i = 0; i < 2 * low - 1; ++i) middle[i] -= out[i];
  for (int i = 0; i < 2 * high - 1; ++i) middle[i] -= out[2 * low + i];
  for (int i = 0; i < 2 * low - 1; ++i) out[low + i] += middle[i];
}

/// For operands of about the same length: the shorter one is filled up.
void multiplyByKaratsuba(Word* out, const Word* a, int na, const Word* b, int nb) {
  // Each level of halves takes 2 * low of either scratch; all levels together stay well below 4 * na.
  WordBuffer<400> filled(5 * na);
  Buffer<DoubleWord, 480> columns(6 * na);
  std::fill(std::copy_n(b, nb, static_cast<Word*>(filled)), filled + na, Word{0});
  karatsuba(columns, a, filled, na, filled + na, columns + 2 * na);
  carryColumns(out, columns, na + nb);
}

/// Piece by piece of the longer operand, so that both operands of a convolution are about equally long.
void multiplyPieces(Word* out, const Word* a, int na, const Word* b, int nb) {
  const int piece = std::min(nb, longestConvolution);
  Words product(piece + nb);
  std::fill_n(out, na + nb, Word{0});
  for (int from = 0; from < na; from += piece) {
    const int count = std::min(piece, na - from);
    multiplyWords(product, b, nb, a + from, count);
    addWords(out + from, na + nb - from, product, count + nb);
  }
}

/// sign * product / base^2 * 10^exponent; both fractions of the product begin with a digit other than 0.
void multiplyOneWord(M_APM_struct* result, DoubleWord product, long long exponent, int sign) {
  if (product < DoubleWord{base / 10} * base) {  // brings the first digit to the front
    product *= 10;
    --exponent;
  }
  const Word high = estimateByBase(product);
  const Word low = static_cast<Word>(product) - high * base;
  const Word more = low >= base ? 1 : 0;
  storeWords(smallRoom(result), high + more, low - more * base);
  finish(result, 16, exponent, sign);
}

/// Takes one operand ten times where the product would begin with a 0: moving all its digits later costs more. Tells
/// how often: 0 or 1. In the rare case that only the lower words could decide it leaves the zero alone.
int scaleToFront(Word first, Word* b, int nb) {
  constexpr DoubleWord limit = DoubleWord{base / 10} * base;
  if (DoubleWord{first + 1} * (b[nb - 1] + 1) > limit) return 0;
  for (int i = 0; i < nb; ++i) b[i] *= 10;  // ten times the base is far from a word's end
  return 1;
}

/// The product of two numbers of n words each.
template <int n>
[[gnu::noinline]] void multiplySame(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b,
                                    long long exponent, int sign) {
  Word first[n];
  Word second[n];
  Word product[2 * n];
  toWords(first, a, n);
  toWords(second, b, n);
  exponent -= scaleToFront(first[n - 1], second, n);  // NOLINT(clang-analyzer-core.CallAndMessage): it is filled
  multiplyFixed<n>(product, first, second);
  unsigned char* const data = makeRoom(result, 16 * n);
#pragma GCC unroll 16
  for (int i = 0; i < n; ++i) storeWords(data + 16 * i, product[2 * (n - i) - 1], product[2 * (n - i) - 2]);
  normalise(result, 16 * n, exponent, sign);
}

/// The product of numbers of any length.
[[gnu::noinline]] void multiplyAny(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b,
                                   long long exponent, int sign) {
  if (static_cast<long long>(a->dataLength) + b->dataLength > M_APM_MAX_DIGITS) {
    return refuse(result, "'m_apm_multiply', Result too long");
  }
  const int na = wordCount(a);
  const int nb = wordCount(b);
  Words words(2 * (na + nb));
  Word* const second = words + na;
  Word* const product = second + nb;
  toWords(words, a, na);
  toWords(second, b, nb);
  const bool isShort = na < karatsubaFrom && nb < karatsubaFrom;
  // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the words are filled
  const int scaled = isShort ? scaleToFront(words[na - 1], second, nb) : 0;
  multiplyWords(product, words, na, second, nb);
  fromWords(result, product, na + nb, exponent - scaled, sign);
}
}  // namespace

void multiplyWords(Word* out, const Word* a, int na, const Word* b, int nb) {
  if (na < nb) return multiplyWords(out, b, nb, a, na);
  if (nb < karatsubaFrom) return multiplyColumns(out, a, na, b, nb);
  if (nb < convolutionFrom && na - nb <= nb / 4) return multiplyByKaratsuba(out, a, na, b, nb);
  if (nb < convolutionFrom && na / 2 < nb) return multiplyColumns(out, a, na, b, nb);
  if (nb > longestConvolution || na / 2 >= nb) return multiplyPieces(out, a, na, b, nb);
  convolveWords(out, a, na, b, nb);
}

}  // namespace zarvik::mapm

void m_apm_multiply(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  using namespace zarvik::mapm;
  if (a->sign == 0 || b->sign == 0) return setZero(result);
  const long long exponent = static_cast<long long>(a->exponent) + b->exponent;
  const int sign = a->sign * b->sign;
  if (a->dataLength <= wordDigits && b->dataLength <= wordDigits) {
    return multiplyOneWord(result, firstProduct(a, b), exponent, sign);
  }
  const int na = wordCount(a);
  const int nb = wordCount(b);
  if (na == nb && na == 2) return multiplySame<2>(result, a, b, exponent, sign);
  if (na == nb && na == 7) return multiplySame<7>(result, a, b, exponent, sign);  // 97 to 112 digits
  multiplyAny(result, a, b, exponent, sign);
}
