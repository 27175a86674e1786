#include "mapm/MAPM.h"

#include <cstdlib>
#include <limits>

#include "Record.h"

namespace {
constinit unsigned char zeroDigits[16] = {};
}  // namespace

constinit const M_APM_struct MAPM::zero = {zeroDigits, M_APM_IDENT, 1, 0, 1, 0, 0};

MAPM::MAPM(const char* text) {
  if (text != nullptr) m_apm_set_string(val(), text, std::strlen(text));
}
MAPM::MAPM(long value) {
  if (value != 0) m_apm_set_long(val(), value);
}
MAPM::MAPM(double value) {
  if (value != 0) m_apm_set_double(val(), value);
}

M_APM_struct* MAPM::val() {
  if (number == nullptr) {
    create();
  } else if (number->refCount != 1) {
    M_APM_struct* const copy = makeNew();
    m_apm_copy(copy, number);
    copyFrom(copy);
  }
  return number;
}

float MAPM::toFloat() const {
  const double value = toDouble();
  constexpr double highest = std::numeric_limits<float>::max();
  if (value > highest || value < -highest) {
    return value > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
  }
  return static_cast<float>(value);
}

MAPM MAPM::abs() const { return sign() < 0 ? neg() : *this; }

MAPM MAPM::neg() const {
  MAPM result = *this;
  if (sign() != 0) result.val()->sign = -sign();
  return result;
}

MAPM MAPM::round(int places) const {
  MAPM result;
  m_apm_round(result.val(), places, cval());
  return result;
}

namespace {

/// Refuses a text beyond reason: a warning, and the empty text.
bool isTooLong(long long length, char* out) {
  if (length <= M_APM_MAX_DIGITS) return false;
  M_apm_log_error_msg(false, "'m_apm_to_string', Text too long");
  *out = 0;
  return true;
}
}  // namespace

void MAPM::toString(char* out, int places) const {
  if (!isTooLong(places, out)) m_apm_to_string(out, places, cval());
}

void MAPM::toFixPtStringEx(char* out, int places, char point, char separator, int group) const {
  const M_APM_format format{places, point, separator, group};
  if (!isTooLong(m_apm_fixpt_length(format, cval()), out)) m_apm_to_fixpt_stringex(out, format, cval());
}

char* MAPM::toFixPtStringExp(int places, char point, char separator, int group) const {
  const long long length = m_apm_fixpt_length({places, point, separator, group}, cval());
  char* const out =
      static_cast<char*>(std::malloc(length <= M_APM_MAX_DIGITS ? static_cast<std::size_t>(length) + 1 : 1));
  if (out == nullptr) zarvik::mapm::outOfMemory("'m_apm_to_fixpt_stringexp', Out of memory");
  toFixPtStringEx(out, places, point, separator, group);
  return out;
}

void MAPM::toIntegerString(char* out) const {
  if (!isTooLong(cval()->exponent, out)) m_apm_to_integer_string(out, cval());
}

MAPM MAPM::divide(const MAPM& other, int digits) const {
  MAPM result;
  m_apm_divide(result.val(), digits, cval(), other.cval());
  return result;
}

MAPM MAPM::integer_divide(const MAPM& other) const { return resultOf<m_apm_integer_divide>(*this, other); }

void MAPM::integer_div_rem(const MAPM& other, MAPM& quotient, MAPM& remainder) const {
  MAPM whole = integer_divide(other);
  MAPM rest = resultOf<m_apm_subtract>(*this, resultOf<m_apm_multiply>(whole, other));
  quotient = static_cast<MAPM&&>(whole);
  remainder = static_cast<MAPM&&>(rest);
}

MAPM MAPM::rem(const MAPM& other) const {
  MAPM quotient;
  MAPM remainder;
  integer_div_rem(other, quotient, remainder);
  return remainder;
}

MAPM& MAPM::operator++() { return *this = resultOf<m_apm_add>(*this, MAPM(1)); }

MAPM MAPM::operator++(int) {
  MAPM before = *this;
  ++*this;
  return before;
}
