#pragma once

#include <bit>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <limits>

#include "mapm/MAPM.h"

/// What the routines of the kernel share about the form of a number at rest.
namespace zarvik::mapm {

constexpr int paddedBytes(int bytes) { return (bytes + 15) & ~15; }
constexpr int bytesOf(int digits) { return static_cast<int>((static_cast<unsigned int>(digits) + 1) / 2); }
inline int byteCount(const M_APM_struct* a) { return bytesOf(a->dataLength); }
inline int digitAt(const M_APM_struct* a, int i) {
  const int pair = a->data[i >> 1];
  return (i & 1) == 0 ? pair / 10 : pair % 10;
}

/// Eight bytes, the first of them lowest.
inline std::uint64_t loadLow(const void* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return std::endian::native == std::endian::little ? word : __builtin_bswap64(word);
}
inline void storeLow(void* bytes, std::uint64_t word) {
  if (std::endian::native != std::endian::little) word = __builtin_bswap64(word);
  std::memcpy(bytes, &word, sizeof word);
}

/// The fatal end of the routine that is named: "'m_apm_...', Out of memory".
[[noreturn]] void outOfMemory(const char* message);

/// Memory for `bytes` bytes, to be freed with `operator delete`; without it the program ends with `message`.
void* allocate(std::size_t bytes, const char* message);

constexpr int leastRoom = 80;  ///< bytes, of every record

/// Digits for up to `leastRoom` bytes with their padding; the old digits are lost.
inline unsigned char* smallRoom(M_APM_struct* number) {
  assert(number->refCount == 1 && number->mallocLength >= leastRoom);
  return number->data;
}

unsigned char* makeLargeRoom(M_APM_struct* number, int bytes);  // `bytes` with their padding

/// Digits for `bytes` bytes and their padding; the old digits are lost. Never fails, but may end the process.
inline unsigned char* makeRoom(M_APM_struct* number, int bytes) {
  assert(number->refCount == 1);
  const int needed = paddedBytes(bytes);
  return needed <= number->mallocLength ? number->data : makeLargeRoom(number, needed);
}

inline void setZero(M_APM_struct* number) {
  number->dataLength = 1;
  number->exponent = 0;
  number->sign = 0;
  std::memset(number->data, 0, 16);
}

/// Warns, and makes the number zero: the way out for what the kernel cannot represent.
void refuse(M_APM_struct* number, const char* warning);

/// Zeros from byte `bytes` to the next multiple of 16, and on into the spare bytes: a fixed count needs no call.
inline void pad(unsigned char* data, int bytes) { std::memset(data + bytes, 0, 16); }

void settleLeadingZeros(M_APM_struct* number, int bytes, long long exponent, int sign);  // for `normalise`
void refuseExponent(M_APM_struct* number);                                               // for `normalise`

/// Makes the `bytes` base-100 digits in `number->data`, which begin with a digit other than 0 and are padded with
/// zeros, a normal number of the value sign * 0.digits * 10^exponent.
inline void finish(M_APM_struct* number, int bytes, long long exponent, int sign) {
  const unsigned char* const data = number->data;
  if (exponent != static_cast<int>(exponent) || exponent == std::numeric_limits<int>::min()) {
    return refuseExponent(number);
  }
  const unsigned char* end = data + paddedBytes(bytes);
  std::uint64_t last;
  while ((last = loadLow(end - 8)) == 0) end -= 8;
  end -= std::countl_zero(last) / 8;
  number->dataLength = static_cast<int>(2 * (end - data)) - (end[-1] % 10 == 0 ? 1 : 0);
  number->exponent = static_cast<int>(exponent);
  number->sign = sign;
}

/// The same for digits that may begin with zeros.
inline void normalise(M_APM_struct* number, int bytes, long long exponent, int sign) {
  if (number->data[0] < 10) return settleLeadingZeros(number, bytes, exponent, sign);
  finish(number, bytes, exponent, sign);
}

/// The first `keep` digits of `a`, half away from zero. `keep` may be anything: from the length on, a copy.
void roundToDigits(M_APM_struct* result, long long keep, const M_APM_struct* a);

/// -1, 0 or 1, for two numbers that are not zero: by exponent, then digit by digit; where all agree the longer one is
/// the greater.
int compareMagnitudes(const M_APM_struct* a, const M_APM_struct* b);

/// A number of the kernel's own for the length of a block.
class Temporary {
 public:
  Temporary() : record(m_apm_init()) {}
  ~Temporary() { m_apm_free(record); }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  operator M_APM_struct*() const { return record; }
  M_APM_struct* operator->() const { return record; }

 private:
  M_APM_struct* record;
};

}  // namespace zarvik::mapm
