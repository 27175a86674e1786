#include <algorithm>

#include "Words.h"

namespace zarvik::mapm {
namespace {

// In words; measured.
constexpr int divisionUpTo = 12;
constexpr int shortDivisor = 20;
constexpr int muchLonger = 4;  ///< times the divisor

/// base^(nd + k) / divisor by division.
void reciprocalByDivision(Word* quotient, int k, const Word* divisor, int nd) {
  Words numerator(nd + k + 2);
  std::fill_n(static_cast<Word*>(numerator), nd + k + 2, Word{0});
  numerator[nd + k] = 1;
  divideWords(quotient, numerator, nd + k, divisor, nd);
}

/// out = base^2n / d, n words, out by a few units at most; n + 1 words. Newton's iteration x' = x + x(1 - dx), each
/// pass on twice as many words: `half` of them come from the recursion.
void approximateReciprocal(Word* out, const Word* d, int n) {
  if (n <= divisionUpTo) return reciprocalByDivision(out, n, d, n);
  const int half = n / 2 + 1;
  Words x(half + 1);
  approximateReciprocal(x, d + n - half, half);

  // error = base^(n + half) - d * x, of which n + 2 words hold all that is not sign.
  const int all = n + half + 1;
  Words product(all);
  multiplyWords(product, d, n, x, half + 1);
  const bool tooSmall = product[all - 1] == 0;
  Word* const error = product;
  if (tooSmall) {  // base^(n + half) is one digit behind the row: the complement
    for (int i = 0; i < n + half; ++i) error[i] = base - 1 - error[i];
    const Word one = 1;
    addWords(error, n + half, &one, 1);
  }
  const int cut = half - 1;
  const int left = n + 2 - cut;
  Words step(left + half + 1);
  multiplyWords(step, error + cut, left, x, half + 1);

  std::fill_n(out, n - half, Word{0});
  std::copy_n(static_cast<Word*>(x), half + 1, out + n - half);
  const Word* const high = step + half + 1;
  const int count = std::min(left, n + 1);
  if (tooSmall) {
    addWords(out, n + 1, high, count);
  } else {
    subtractWords(out, n + 1, high, count);
  }
}

/// Corrects a quotient that is out by a few units: afterwards 0 <= numerator - quotient * divisor < divisor.
/// `numerator` has nd + k + 1 words and becomes the remainder.
void settle(Word* quotient, int k, Word* numerator, const Word* divisor, int nd) {
  const int all = nd + k + 1;
  const Word one = 1;
  Words product(all);
  multiplyWords(product, divisor, nd, quotient, k + 1);
  while (compareWords(product, numerator, all) > 0) {
    subtractWords(quotient, k + 1, &one, 1);
    subtractWords(product, all, divisor, nd);
  }
  subtractWords(numerator, all, product, all);
  while (std::any_of(numerator + nd, numerator + all, [](Word word) { return word != 0; }) ||
         compareWords(numerator, divisor, nd) >= 0) {
    addWords(quotient, k + 1, &one, 1);
    subtractWords(numerator, all, divisor, nd);
  }
}

/// base^2n / divisor with n = k + 2, from as many of the divisor's words as matter; n + 1 words.
void leadingReciprocal(Word* out, int n, const Word* divisor, int nd) {
  Words leading(n);
  const int taken = std::min(n, nd);
  std::fill_n(static_cast<Word*>(leading), n - taken, Word{0});
  std::copy_n(divisor + nd - taken, taken, leading + n - taken);
  approximateReciprocal(out, leading, n);
}
}  // namespace

void reciprocalWords(Word* quotient, int k, const Word* divisor, int nd) {
  const bool isSoonDivided = k <= divisionUpTo || nd <= shortDivisor || k / muchLonger > nd;
  if (isSoonDivided) return reciprocalByDivision(quotient, k, divisor, nd);
  const int n = k + 2;
  Words x(n + 1);
  leadingReciprocal(x, n, divisor, nd);
  std::copy_n(x + 2, k + 1, quotient);
  Words numerator(nd + k + 1);
  std::fill_n(static_cast<Word*>(numerator), nd + k, Word{0});
  numerator[nd + k] = 1;
  settle(quotient, k, numerator, divisor, nd);
}

void divideByReciprocal(Word* quotient, Word* numerator, int k, const Word* divisor, int nd) {
  const int n = k + 2;
  Words x(n + 1);
  leadingReciprocal(x, n, divisor, nd);
  const int all = nd + k + 1;
  const int taken = std::min(n + 1, all);
  Words product(n + 1 + taken);
  multiplyWords(product, x, n + 1, numerator + all - taken, taken);
  const Word* const estimate = product + taken + 1;  // base^(n + nd) / divisor * numerator / base^(all - taken)
  std::copy_n(estimate, k + 1, quotient);
  if (estimate[k + 1] != 0) std::fill_n(quotient, k + 1, base - 1);  // too high to fit
  settle(quotient, k, numerator, divisor, nd);
}

}  // namespace zarvik::mapm

void m_apm_reciprocal(M_APM_struct* result, int places, const M_APM_struct* a) {
  using namespace zarvik::mapm;
  if (a->sign == 0) return refuse(result, "'m_apm_reciprocal', Input = 0");
  if (places > M_APM_MAX_DIGITS) return refuse(result, "'m_apm_reciprocal', Result too long");
  const int nd = wordCount(a);
  const int k = std::max(places, 0) / wordDigits + 1;  // the digit that rounds is among them
  Words divisor(nd);
  Words quotient(k + 1);
  toWords(divisor, a, nd);
  reciprocalWords(quotient, k, divisor, nd);
  const Temporary exact;
  fromWords(exact, quotient, k + 1, wordDigits - static_cast<long long>(a->exponent), a->sign);
  roundToDigits(result, places, exact);
}
