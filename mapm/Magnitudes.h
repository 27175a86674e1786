#pragma once

#include "Record.h"

/// Sums and differences of rows of base-100 digits, which is what is left of a sum once signs and exponents are known.
namespace zarvik::mapm {

/// The digits of an operand, with zeros behind them up to whole blocks of sixteen bytes.
struct Digits {
  const unsigned char* data;
  int bytes;
};

/// out = a + b. Where the first byte carries, all digits are moved by one, behind a 1, which the caller is told. `out`
/// has room for the longer one's bytes and 24 more, and is padded.
bool addMagnitudes(unsigned char* out, Digits a, Digits b);

/// out = a - b for a >= b; may begin with zeros.
void subtractMagnitudes(unsigned char* out, Digits a, Digits b);

}  // namespace zarvik::mapm
