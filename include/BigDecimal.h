#pragma once

#include "mapm/MAPM.h"
#include "zkstring.h"

namespace zarvik {

class BigInteger;

/// A decimal number of any length, for money and other values that must not round.
///
/// Sums, differences and products are exact. A quotient carries the greatest of both operands' digits and 30, and as
/// many more as the dividend's exponent is above the divisor's; division by zero warns on standard error and gives 0.
/// Copies share the digits; a moved-from number is 0. One thread at a time, as with all of MAPM.
class BigDecimal : public MAPM {
 public:
  BigDecimal() noexcept = default;
  BigDecimal(int value) : BigDecimal(static_cast<__int64>(value)) {}
  BigDecimal(__int64 value);
  BigDecimal(float value) : BigDecimal(static_cast<double>(value)) {}
  BigDecimal(double value) : MAPM(value) {}  ///< 15 significant digits survive
  /// Blanks, a sign, digits with a point, an exponent behind `e`; anything else warns on standard error and is 0.
  BigDecimal(const char* text) : MAPM(text) {}
  BigDecimal(const zkstring& text);  ///< the same; a NUL ends the text
  BigDecimal(const BigInteger& value);

  int toInt() const { return MAPM::toInt(); }  ///< toward zero; beyond `int` some other number, as with `atoi`
  __int64 toLong() const;                      ///< toward zero; beyond the range as `v_atol` fails
  float toFloat() const { return MAPM::toFloat(); }
  double toDouble() const { return MAPM::toDouble(); }
  int sign() const { return MAPM::sign(); }

  /// All digits, such as 12.5, 12 and 120.0: a whole number that ends in 0 shows a decimal. Throws TransformException
  /// for a text of more than M_APM_MAX_DIGITS characters, which only an exponent beyond reason asks for.
  zkstring toString() const;
  void toString(zkstring& out) const;     ///< the same, in out's own block when nobody shares it and it has room
  const char* toString(char* out) const;  ///< the same into a buffer of `fixPtLength(-1)` + 1 bytes, mostly below 2000

  bool operator==(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) == 0; }
  bool operator!=(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) != 0; }
  bool operator<(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) < 0; }
  bool operator<=(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) <= 0; }
  bool operator>(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) > 0; }
  bool operator>=(const BigDecimal& other) const { return m_apm_compare(cval(), other.cval()) >= 0; }

 private:
  explicit BigDecimal(const MAPM& value) noexcept : MAPM(value) {}
  explicit BigDecimal(MAPM&& value) noexcept : MAPM(static_cast<MAPM&&>(value)) {}

  friend BigDecimal operator+(const BigDecimal& a, const BigDecimal& b);
  friend BigDecimal operator-(const BigDecimal& a, const BigDecimal& b);
  friend BigDecimal operator*(const BigDecimal& a, const BigDecimal& b);
  friend BigDecimal operator/(const BigDecimal& a, const BigDecimal& b);
  friend BigDecimal operator%(const BigDecimal& a, const BigDecimal& b);
};

BigDecimal operator+(const BigDecimal& a, const BigDecimal& b);
BigDecimal operator-(const BigDecimal& a, const BigDecimal& b);
BigDecimal operator*(const BigDecimal& a, const BigDecimal& b);
BigDecimal operator/(const BigDecimal& a, const BigDecimal& b);  ///< cut, or from 250 digits on rounded
BigDecimal operator%(const BigDecimal& a, const BigDecimal& b);  ///< bears a's sign

}  // namespace zarvik
