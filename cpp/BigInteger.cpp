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
const char* BigInteger::toString(char* out) const { return writeFixedPoint(out, cval(), 0); }

BigInteger operator+(const BigInteger& a, const BigInteger& b) {
  BigInteger result;
  m_apm_add(result.val(), a.cval(), b.cval());
  return result;
}

BigInteger operator-(const BigInteger& a, const BigInteger& b) {
  BigInteger result;
  m_apm_subtract(result.val(), a.cval(), b.cval());
  return result;
}

BigInteger operator*(const BigInteger& a, const BigInteger& b) {
  BigInteger result;
  m_apm_multiply(result.val(), a.cval(), b.cval());
  return result;
}

BigInteger operator/(const BigInteger& a, const BigInteger& b) { return BigInteger(a.divide(b).round(0)); }
BigInteger operator%(const BigInteger& a, const BigInteger& b) { return BigInteger(a.rem(b)); }

}  // namespace zarvik
