#include "Record.h"

namespace zarvik::mapm {
namespace {

/// The first `keep` digits, cut. `keep` is at least 1 and below the length.
int copyDigits(unsigned char* out, const M_APM_struct* a, int keep) {
  const int bytes = bytesOf(keep);
  std::memcpy(out, a->data, static_cast<std::size_t>(bytes));
  if (keep % 2 != 0) out[bytes - 1] = static_cast<unsigned char>(out[bytes - 1] / 10 * 10);
  pad(out, bytes);
  return bytes;
}

/// Adds 1 at digit `keep` - 1; whether all digits were nines, and are now zeros.
bool increment(unsigned char* data, int keep) {
  int add = keep % 2 != 0 ? 10 : 1;
  for (int i = bytesOf(keep); i-- > 0;) {
    const int sum = data[i] + add;
    if (sum < 100) {
      data[i] = static_cast<unsigned char>(sum);
      return false;
    }
    data[i] = static_cast<unsigned char>(sum - 100);
    add = 1;
  }
  return true;
}

/// sign * 0.1 * 10^exponent
void setPower(M_APM_struct* result, long long exponent, int sign) {
  unsigned char* const data = makeRoom(result, 1);
  data[0] = 10;
  pad(data, 1);
  normalise(result, 1, exponent, sign);
}
}  // namespace

void roundToDigits(M_APM_struct* result, long long keep, const M_APM_struct* a) {
  if (keep >= a->dataLength) return m_apm_copy(result, a);
  if (keep < 0) return setZero(result);
  const bool up = digitAt(a, static_cast<int>(keep)) >= 5;
  if (keep == 0) return up ? setPower(result, a->exponent + 1LL, a->sign) : setZero(result);
  unsigned char* const data = makeRoom(result, bytesOf(static_cast<int>(keep)));
  const int bytes = copyDigits(data, a, static_cast<int>(keep));
  if (up && increment(data, static_cast<int>(keep))) return setPower(result, a->exponent + 1LL, a->sign);
  normalise(result, bytes, a->exponent, a->sign);
}

}  // namespace zarvik::mapm

void m_apm_round(M_APM_struct* result, int places, const M_APM_struct* a) {
  zarvik::mapm::roundToDigits(result, places + 1LL, a);
}
