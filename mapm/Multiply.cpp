#include <algorithm>

#include "Words.h"

namespace zarvik::mapm {
namespace {

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

/// Column by column: a column of up to `convolutionFrom` products and the carry fits into a double word.
void multiplyColumns(Word* out, const Word* a, int na, const Word* b, int nb) {
  Word carry = 0;
  for (int k = 0; k < na + nb - 1; ++k) {
    const int first = std::max(0, k - nb + 1);
    const int last = std::min(k, na - 1);
    carry = divideByBase(carry + column(a + first, b + k - first, last - first + 1), out[k]);
  }
  out[na + nb - 1] = carry;
}

/// Two words by two.
void multiplyPairs(Word* out, const Word* a, const Word* b) {
  Word carry = divideByBase(DoubleWord{a[0]} * b[0], out[0]);
  carry = divideByBase(carry + DoubleWord{a[0]} * b[1] + DoubleWord{a[1]} * b[0], out[1]);
  out[3] = divideByBase(carry + DoubleWord{a[1]} * b[1], out[2]);
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
}  // namespace

void multiplyWords(Word* out, const Word* a, int na, const Word* b, int nb) {
  if (na < nb) return multiplyWords(out, b, nb, a, na);
  if (na == 1) {
    out[1] = divideByBase(DoubleWord{*a} * *b, out[0]);
    return;
  }
  if (na == 2 && nb == 2) return multiplyPairs(out, a, b);
  if (nb < convolutionFrom) return multiplyColumns(out, a, na, b, nb);
  if (nb > longestConvolution || na / 2 >= nb) return multiplyPieces(out, a, na, b, nb);
  convolveWords(out, a, na, b, nb);
}

}  // namespace zarvik::mapm

void m_apm_multiply(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  using namespace zarvik::mapm;
  if (a->sign == 0 || b->sign == 0) return setZero(result);
  if (static_cast<long long>(a->dataLength) + b->dataLength > M_APM_MAX_DIGITS)
    return refuse(result, "'m_apm_multiply', Result too long");
  const int na = wordCount(a);
  const int nb = wordCount(b);
  Words words(2 * (na + nb));
  Word* const second = words + na;
  Word* const product = second + nb;
  toWords(words, a, na);
  toWords(second, b, nb);
  multiplyWords(product, words, na, second, nb);
  fromWords(result, product, na + nb, static_cast<long long>(a->exponent) + b->exponent, a->sign * b->sign);
}
