#include <algorithm>

#include "Record.h"

namespace zarvik::mapm {

int compareMagnitudes(const M_APM_struct* a, const M_APM_struct* b) {
  if (a->exponent != b->exponent) return a->exponent < b->exponent ? -1 : 1;
  const int common = std::min(byteCount(a), byteCount(b));
  const int order = std::memcmp(a->data, b->data, static_cast<std::size_t>(common));
  const int difference = order != 0 ? order : a->dataLength - b->dataLength;
  return (difference > 0) - (difference < 0);
}

}  // namespace zarvik::mapm

int m_apm_compare(const M_APM_struct* a, const M_APM_struct* b) {
  if (a == b) return 0;
  if (a->sign != b->sign) return a->sign < b->sign ? -1 : 1;
  return a->sign == 0 ? 0 : a->sign * zarvik::mapm::compareMagnitudes(a, b);
}

bool m_apm_is_integer(const M_APM_struct* a) { return a->sign == 0 || a->exponent >= a->dataLength; }

bool m_apm_is_even(const M_APM_struct* a) {
  if (a->sign == 0) return true;
  if (!m_apm_is_integer(a)) {
    M_apm_log_error_msg(false, "'m_apm_is_even', Non-integer input");
    return false;
  }
  return a->exponent > a->dataLength || zarvik::mapm::digitAt(a, a->dataLength - 1) % 2 == 0;
}

bool m_apm_is_odd(const M_APM_struct* a) {
  if (!m_apm_is_integer(a)) {
    M_apm_log_error_msg(false, "'m_apm_is_odd', Non-integer input");
    return false;
  }
  return !m_apm_is_even(a);
}
