#include "BigDecimal.h"

#include "BigInteger.h"
#include "NumberText.h"

namespace zarvik {

BigDecimal::BigDecimal(__int64 value) {
  if (value != 0) m_apm_set_long(val(), value);
}
BigDecimal::BigDecimal(const zkstring& text) { m_apm_set_string(val(), text.data(), text.length()); }
BigDecimal::BigDecimal(const BigInteger& value) : MAPM(value) {}

__int64 BigDecimal::toLong() const { return wholeNumber(cval()); }

namespace {

/// Just the digits there are; below 0, which the writer shows as one decimal, for a whole number that ends in 0.
long long decimals(const MAPM& value) {
  return static_cast<long long>(value.significant_digits()) - value.exponent() - 1;
}
}  // namespace

zkstring BigDecimal::toString() const { return fixedPointText(cval(), decimals(*this)); }
void BigDecimal::toString(zkstring& out) const { fixedPointText(cval(), decimals(*this), out); }
const char* BigDecimal::toString(char* out) const { return writeFixedPoint(out, cval(), decimals(*this)); }

BigDecimal operator+(const BigDecimal& a, const BigDecimal& b) {
  return BigDecimal(BigDecimal::resultOf<m_apm_add>(a, b));
}
BigDecimal operator-(const BigDecimal& a, const BigDecimal& b) {
  return BigDecimal(BigDecimal::resultOf<m_apm_subtract>(a, b));
}
BigDecimal operator*(const BigDecimal& a, const BigDecimal& b) {
  return BigDecimal(BigDecimal::resultOf<m_apm_multiply>(a, b));
}
BigDecimal operator/(const BigDecimal& a, const BigDecimal& b) { return BigDecimal(a.divide(b)); }
BigDecimal operator%(const BigDecimal& a, const BigDecimal& b) { return BigDecimal(a.rem(b)); }

}  // namespace zarvik
