#include "BigInteger.h"

#include "BigDecimal.h"
#include "NumberText.h"

namespace zarvik {

BigInteger::BigInteger(__int64 value) {
  if (value != 0) m_apm_set_long(val(), value);
}
BigInteger::BigInteger(const zkstring& text) { m_apm_set_string(val(), text.data(), text.length()); }
BigInteger::BigInteger(const BigDecimal& value) : MAPM(value) {}

__int64 BigInteger::toLong() const { return wholeNumber(cval()); }

zkstring BigInteger::toString() const { return fixedPointText(cval(), 0); }
void BigInteger::toString(zkstring& out) const { fixedPointText(cval(), 0, out); }
const char* BigInteger::toString(char* out) const { return writeFixedPoint(out, cval(), 0); }

BigInteger operator+(const BigInteger& a, const BigInteger& b) {
  return BigInteger(BigInteger::resultOf<m_apm_add>(a, b));
}
BigInteger operator-(const BigInteger& a, const BigInteger& b) {
  return BigInteger(BigInteger::resultOf<m_apm_subtract>(a, b));
}
BigInteger operator*(const BigInteger& a, const BigInteger& b) {
  return BigInteger(BigInteger::resultOf<m_apm_multiply>(a, b));
}
BigInteger operator/(const BigInteger& a, const BigInteger& b) { return BigInteger(a.divide(b).round(0)); }
BigInteger operator%(const BigInteger& a, const BigInteger& b) { return BigInteger(a.rem(b)); }

}  // namespace zarvik
