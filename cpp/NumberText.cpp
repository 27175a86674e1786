#include "NumberText.h"

#include "Conversion.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/NumberText";

unsigned int roomFor(long long length) {
  if (length > M_APM_MAX_DIGITS) throwFrom(here, TransformException("Number too long for a text"));
  return static_cast<unsigned int>(length);
}
}  // namespace

zkstring fixedPointText(const M_APM_struct* number, long long places) {
  zkstring text;
  fixedPointText(number, places, text);
  return text;
}

void fixedPointText(const M_APM_struct* number, long long places, zkstring& out) {
  const M_APM_format format{places};
  char* const text = out.getBuffer(static_cast<int>(roomFor(m_apm_fixpt_length(format, number)) + 1));
  out.setBufferLength(static_cast<int>(m_apm_to_fixpt_stringex(text, format, number)));
}

const char* writeFixedPoint(char* out, const M_APM_struct* number, long long places) {
  const M_APM_format format{places};
  roomFor(m_apm_fixpt_length(format, number));
  m_apm_to_fixpt_stringex(out, format, number);
  return out;
}

__int64 wholeNumber(const M_APM_struct* number) {
  if (number->exponent < 19) return m_apm_to_long(number);  // 18 digits always fit
  zkstring text;
  char* const out = text.getBuffer(static_cast<int>(roomFor(m_apm_fixpt_length({0}, number)) + 1));
  text.setBufferLength(static_cast<int>(m_apm_to_integer_string(out, number)));
  return v_atol(text.data(), text.data() + text.length());
}

}  // namespace zarvik
