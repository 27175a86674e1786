#pragma once

namespace zarvik::mapm {

/// Moves `bytes` bytes of digits one digit to the back, behind `digit`, from `in` to `out`, which may be the same. Both
/// have room for 16 bytes more; what lies behind byte `bytes` of `out` is lost.
void insertDigit(unsigned char* out, const unsigned char* in, int bytes, unsigned int digit);

/// Moves all digits one place to the front; the first one is lost. The `bytes` bytes are followed by their padding.
void dropLeadingDigit(unsigned char* data, int bytes);

}  // namespace zarvik::mapm
