#pragma once

#include "mapm/MAPM.h"
#include "zkstring.h"

namespace zarvik {

class BigDecimal;

/// A number of any length that is meant to be whole.
///
/// It holds what it is given, fractions included; only `toString` and `/` look at the whole part. Copies share the
/// digits; a moved-from number is 0. One thread at a time, as with all of MAPM.
class BigInteger : public MAPM {
 public:
  BigInteger() noexcept = default;
  BigInteger(int value) : BigInteger(static_cast<__int64>(value)) {}
  BigInteger(__int64 value);
  BigInteger(unsigned long long value) : BigInteger(static_cast<__int64>(value)) {}  ///< taken as signed on purpose
  /// Blanks, a sign, digits with a point, an exponent behind `e`; anything else warns on standard error and is 0.
  BigInteger(const char* text) : MAPM(text) {}
  BigInteger(const zkstring& text);              ///< the same; a NUL ends the text
  explicit BigInteger(const BigDecimal& value);  ///< keeps a fraction

  int toInt() const { return MAPM::toInt(); }  ///< toward zero; beyond `int` some other number, as with `atoi`
  __int64 toLong() const;                      ///< toward zero; beyond the range as `v_atol` fails
  unsigned long long toULong() const { return static_cast<unsigned long long>(toLong()); }  ///< fails above 2^63 - 1
  float toFloat() const { return MAPM::toFloat(); }
  double toDouble() const { return MAPM::toDouble(); }
  int sign() const { return MAPM::sign(); }
  BigInteger abs() const { return BigInteger(MAPM::abs()); }

  /// Rounded half away from zero to a whole number, without a point. Throws TransformException for a text of more than
  /// M_APM_MAX_DIGITS characters, which only an exponent beyond reason asks for.
  zkstring toString() const;
  void toString(zkstring& out) const;     ///< the same, in out's own block when nobody shares it and it has room
  const char* toString(char* out) const;  ///< the same into a buffer of `fixPtLength(0)` + 1 bytes

  bool operator==(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) == 0; }
  bool operator!=(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) != 0; }
  bool operator<(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) < 0; }
  bool operator<=(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) <= 0; }
  bool operator>(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) > 0; }
  bool operator>=(const BigInteger& other) const { return m_apm_compare(cval(), other.cval()) >= 0; }

 private:
  friend class BigDecimal;

  explicit BigInteger(const MAPM& value) noexcept : MAPM(value) {}
  explicit BigInteger(MAPM&& value) noexcept : MAPM(static_cast<MAPM&&>(value)) {}

  friend BigInteger operator+(const BigInteger& a, const BigInteger& b);
  friend BigInteger operator-(const BigInteger& a, const BigInteger& b);
  friend BigInteger operator*(const BigInteger& a, const BigInteger& b);
  friend BigInteger operator/(const BigInteger& a, const BigInteger& b);
  friend BigInteger operator%(const BigInteger& a, const BigInteger& b);
};

BigInteger operator+(const BigInteger& a, const BigInteger& b);
BigInteger operator-(const BigInteger& a, const BigInteger& b);
BigInteger operator*(const BigInteger& a, const BigInteger& b);
/// The quotient rounded to ONE significant digit, half away from zero, odd on purpose: 1000 / 3 is 300 and 7 / 2 is 4.
BigInteger operator/(const BigInteger& a, const BigInteger& b);
BigInteger operator%(const BigInteger& a, const BigInteger& b);  ///< bears a's sign

}  // namespace zarvik
