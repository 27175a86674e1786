#pragma once

#include "mapm/MAPM.h"
#include "zkstring.h"

/// What BigDecimal and BigInteger share on top of the kernel: its texts as strings, and its refusals as exceptions.
namespace zarvik {

zkstring fixedPointText(const M_APM_struct* number, long long places);
void fixedPointText(const M_APM_struct* number, long long places, zkstring& out);  ///< the same, in out's own block
const char* writeFixedPoint(char* out, const M_APM_struct* number, long long places);

/// Cut toward zero; throws what `v_atol` throws for a number out of range.
__int64 wholeNumber(const M_APM_struct* number);

}  // namespace zarvik
