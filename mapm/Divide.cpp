#include <algorithm>

#include "Words.h"

// Division: the quotient's digits as long division gives them, cut, or by way of the reciprocal, rounded.

namespace zarvik::mapm {

void divideByReciprocal(Word* quotient, Word* numerator, int k, const Word* divisor, int nd);

namespace {

constexpr int longDivisionBelow = 250;  ///< places
constexpr int guardDigits = 8;          ///< of the reciprocal
constexpr int newtonFrom = 40;          ///< words of quotient and divisor; measured

void divideByWord(Word* quotient, const Word* numerator, int n, Word divisor) {
  Word rest = numerator[n];
  for (int i = n; i-- > 0;) {
    const DoubleWord value = DoubleWord{rest} * base + numerator[i];
    quotient[i] = static_cast<Word>(value / divisor);
    rest = static_cast<Word>(value) - quotient[i] * divisor;
  }
}

/// The next word of the quotient, from the top three words of what is left at `top`: right, or 1 too high.
Word estimate(const Word* top, Word first, Word second) {
  const DoubleWord high = DoubleWord{top[0]} * base + top[-1];
  Word q = top[0] >= first ? base - 1 : static_cast<Word>(high / first);
  DoubleWord rest = high - DoubleWord{q} * first;
  while (DoubleWord{q} * second > rest * base + top[-2]) {
    --q;
    rest += first;
  }
  return q;
}

/// u -= q * d, over n + 1 words of u; whether it went below zero.
bool subtractMultiple(Word* u, Word q, const Word* d, int n) {
  Word carry = 0;
  for (int i = 0; i < n; ++i) {
    Word low;
    carry = carryOn(DoubleWord{q} * d[i], carry, low);
    const bool borrow = u[i] < low;
    u[i] = u[i] - low + (borrow ? base : 0);
    carry += borrow ? 1 : 0;
  }
  const bool below = u[n] < carry;
  u[n] = u[n] - carry + (below ? base : 0);
  return below;
}

/// Long division by words (Knuth, volume 2, 4.3.1, algorithm D). With base / 10 as the least top word of the divisor
/// the estimate from two words by one is put right by a look at the third.
void divideBySchoolbook(Word* quotient, Word* numerator, int n, const Word* divisor, int nd) {
  for (int i = n - nd; i >= 0; --i) {
    Word* const rest = numerator + i;
    Word q = estimate(rest + nd, divisor[nd - 1], divisor[nd - 2]);
    if (subtractMultiple(rest, q, divisor, nd)) {
      --q;
      rest[nd] = (rest[nd] + addWords(rest, nd, divisor, nd)) % base;
    }
    quotient[i] = q;
  }
}

/// Long division by blocks of as many words as the divisor has: each leaves the head of the next. A reciprocal longer
/// than the divisor costs more than it saves.
void divideByBlocks(Word* quotient, Word* numerator, int n, const Word* divisor, int nd) {
  for (int left = n - nd + 1; left > 0;) {
    const int block = (left - 1) % nd + 1;
    left -= block;
    divideWords(quotient + left, numerator + left, nd + block - 1, divisor, nd);
  }
}

/// Moves all digits of the words one place down; the last one is lost.
void shiftDown(Word* words, int n) {
  Word digit = 0;
  for (int i = n; i-- > 0;) {
    const Word word = words[i];
    words[i] = word / 10 + digit * (base / 10);
    digit = word % 10;
  }
}

/// The first `count` words of the fraction, filled up with zeros. What lies behind the quotient's last word does not
/// count.
void leadingWords(Word* out, int count, const M_APM_struct* a) {
  const int na = wordCount(a);
  if (na <= count) {
    toWords(out + count - na, a, na);
    std::fill_n(out, count - na, Word{0});
  } else {
    Words all(na);
    toWords(all, a, na);
    std::copy_n(all + na - count, count, out);
  }
}

/// The fractions' quotient as a fraction of k words, cut, that begins with a digit other than 0. It may be a tenth of
/// the true one: tells how often, 0 or 1.
int quotientWords(Word* quotient, int k, const M_APM_struct* a, const M_APM_struct* b) {
  const int nd = wordCount(b);
  const int n = nd + k;
  Words divisor(nd);
  Words numerator(n);
  toWords(divisor, b, nd);
  leadingWords(numerator, n, a);
  const bool isBelow = compareWords(numerator + k, divisor, nd) < 0;
  if (!isBelow) shiftDown(numerator, n);
  divideWords(quotient, numerator, n - 1, divisor, nd);
  return isBelow ? 0 : 1;
}

/// The first `keep` digits of the number, without rounding.
void cut(M_APM_struct* number, long long keep) {
  if (keep >= number->dataLength) return;
  if (keep <= 0) return setZero(number);
  const int digits = static_cast<int>(keep);
  const int bytes = bytesOf(digits);
  if (digits % 2 != 0) number->data[bytes - 1] = static_cast<unsigned char>(number->data[bytes - 1] / 10 * 10);
  pad(number->data, bytes);
  normalise(number, bytes, number->exponent, number->sign);
}

/// a / b to `digits` significant digits, cut.
void longDivision(M_APM_struct* result, long long digits, const M_APM_struct* a, const M_APM_struct* b) {
  const int k = std::max(1, static_cast<int>((digits + wordDigits - 1) / wordDigits));
  Words quotient(k);
  const int tenth = quotientWords(quotient, k, a, b);
  fromWords(result, quotient, k, static_cast<long long>(a->exponent) - b->exponent + tenth, a->sign * b->sign);
  cut(result, digits);
}

void divideByRounding(M_APM_struct* result, long long digits, const M_APM_struct* a, const M_APM_struct* b) {
  const Temporary reciprocal;
  const Temporary product;
  m_apm_reciprocal(reciprocal, static_cast<int>(digits) + guardDigits, b);
  m_apm_multiply(product, a, reciprocal);
  roundToDigits(result, digits, product);
}

long long exponentsDifference(const M_APM_struct* a, const M_APM_struct* b) {
  return static_cast<long long>(a->exponent) - b->exponent;
}
}  // namespace

void divideWords(Word* quotient, Word* numerator, int n, const Word* divisor, int nd) {
  if (nd == 1) return divideByWord(quotient, numerator, n, divisor[0]);
  const int k = n - nd;
  if (nd < newtonFrom || k < newtonFrom) return divideBySchoolbook(quotient, numerator, n, divisor, nd);
  if (k > nd) return divideByBlocks(quotient, numerator, n, divisor, nd);
  divideByReciprocal(quotient, numerator, k, divisor, nd);
}

}  // namespace zarvik::mapm

using namespace zarvik::mapm;

void m_apm_divide(M_APM_struct* result, int places, const M_APM_struct* a, const M_APM_struct* b) {
  if (b->sign == 0) return refuse(result, "'m_apm_divide', Divide by 0");
  if (a->sign == 0) return setZero(result);
  const long long digits = places + std::max(0LL, exponentsDifference(a, b));
  if (digits > M_APM_MAX_DIGITS) return refuse(result, "'m_apm_divide', Result too long");
  if (places < longDivisionBelow) {
    longDivision(result, std::max(digits, 0LL), a, b);
  } else {
    divideByRounding(result, digits, a, b);
  }
}

void m_apm_integer_divide(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  constexpr int places = 4;
  m_apm_divide(result, places, a, b);
  cut(result, result->exponent);
}
