#include "DigitShift.h"

#include "Lanes.h"
#include "Record.h"

// Two digits share a byte, so that a move by one digit takes every byte apart. Sixteen or eight bytes at a time.

namespace zarvik::mapm {

#ifdef __SSE2__

namespace {

/// out[i] = the units of in[i] and the tens of in[i + 1], for `bytes` bytes; up to 15 bytes behind them are read and
/// lost, too. `out` is `in` or a byte behind it, or they lie apart: the next bytes are read before a block is written.
void joinAll(unsigned char* out, const unsigned char* in, int bytes) {
  constexpr int step = 15;
  const __m128i ten = factor(10);
  __m128i pairs = load(in);
  std::ptrdiff_t i = 0;
  for (; i < bytes - step; i += step) {
    const __m128i joined = joinNeighbours(pairs, ten);
    pairs = load(in + i + step);
    store(out + i, joined);
  }
  store(out + i, joinNeighbours(pairs, ten));
}
}  // namespace

void insertDigit(unsigned char* out, const unsigned char* in, int bytes, unsigned int digit) {
  const auto first = static_cast<unsigned char>(10 * digit + in[0] / 10);
  const auto last = static_cast<unsigned char>(10 * (in[bytes - 1] % 10));
  joinAll(out + 1, in, bytes);
  out[0] = first;
  out[bytes] = last;
}

void dropLeadingDigit(unsigned char* data, int bytes) {
  data[paddedBytes(bytes)] = 0;  // gives its tens
  joinAll(data, data, paddedBytes(bytes));
}

#else

namespace {

/// Eight base-100 bytes: the tens of each go into `tens`, the units are returned.
std::uint64_t splitTens(std::uint64_t word, std::uint64_t& tens) {
  constexpr std::uint64_t lanes = 0x00FF00FF00FF00FF;
  constexpr std::uint64_t digit = 0x000F000F000F000F;
  tens = (((word & lanes) * 103 >> 10) & digit) | (((word >> 8 & lanes) * 103 >> 10) & digit) << 8;
  return word - 10 * tens;
}
}  // namespace

void insertDigit(unsigned char* out, const unsigned char* in, int bytes, unsigned int digit) {
  std::uint64_t before = digit;
  int i = 0;
  for (; i < bytes; i += 8) {
    std::uint64_t tens;
    const std::uint64_t units = splitTens(loadLow(in + i), tens);
    storeLow(out + i, 10 * (units << 8 | before) + tens);
    before = units >> 56;
  }
  storeLow(out + i, 10 * before);
}

void dropLeadingDigit(unsigned char* data, int bytes) {
  const int words = paddedBytes(bytes) / 8;
  std::uint64_t tens;
  std::uint64_t units = splitTens(loadLow(data), tens);
  for (int i = 0; i < words; ++i) {
    std::uint64_t nextTens = 0;
    const std::uint64_t nextUnits = i + 1 < words ? splitTens(loadLow(data + 8 * (i + 1)), nextTens) : 0;
    storeLow(data + 8 * i, 10 * units + (tens >> 8 | nextTens << 56));
    units = nextUnits;
    tens = nextTens;
  }
}

#endif

}  // namespace zarvik::mapm
