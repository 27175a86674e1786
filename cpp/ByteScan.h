#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace zarvik {

/// Searching and adding up bytes, many at a time: in vectors where the machine has them, in words elsewhere. Both ways
/// give the same.

constexpr unsigned int windowSize = 16;  ///< the bytes that `places` looks at

namespace words {

constexpr std::uint64_t inEveryByte(unsigned char byte) { return byte * std::uint64_t{0x0101010101010101}; }

inline std::uint64_t wordAt(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// A bit for each zero byte of the word, the lowest for the first in memory.
inline unsigned int zeroBytes(std::uint64_t word) {
  constexpr std::uint64_t low = inEveryByte(0x7f);
  // A byte's top bit is left clear by the sum only if all its others are.
  std::uint64_t zeros = ~(((word & low) + low) | word | low);
  if (std::endian::native == std::endian::big) zeros = __builtin_bswap64(zeros);
  return static_cast<unsigned int>((zeros >> 7) * 0x0102040810204080 >> 56);  // each bit to a place of its own
}

/// A bit for each place in which the windows agree, the lowest for the first.
inline unsigned int places(const char* window, const char* wanted) {
  return zeroBytes(wordAt(window) ^ wordAt(wanted)) | zeroBytes(wordAt(window + 8) ^ wordAt(wanted + 8)) << 8;
}

/// The sum of the bytes modulo 256: eight sums at once, each in a byte of its own, without a carry between them.
inline unsigned char sum(const char* bytes, std::size_t length) {
  constexpr std::uint64_t low = inEveryByte(0x7f);
  std::uint64_t sums = 0;
  std::size_t i = 0;
  for (; i + 8 <= length; i += 8) {
    const std::uint64_t word = wordAt(bytes + i);
    sums = ((sums & low) + (word & low)) ^ ((sums ^ word) & ~low);
  }
  constexpr std::uint64_t even = 0x00ff00ff00ff00ff;
  std::uint64_t total = ((sums & even) + (sums >> 8 & even)) * 0x0001000100010001 >> 48;
  for (; i < length; ++i) total += static_cast<unsigned char>(bytes[i]);
  return static_cast<unsigned char>(total);
}
}  // namespace words

#ifdef __SSE2__
namespace vectors {

inline __m128i vectorAt(const char* bytes) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)); }

inline unsigned int places(const char* window, const char* wanted) {
  return static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(vectorAt(window), vectorAt(wanted))));
}

/// Sums of eight bytes each, of which the low byte counts: psadbw, with the bytes' distance to 0.
inline unsigned char sum(const char* bytes, std::size_t length) {
  const __m128i zero = _mm_setzero_si128();
  __m128i even = zero;
  __m128i odd = zero;
  std::size_t i = 0;
  for (; i + 32 <= length; i += 32) {
    even = _mm_add_epi64(even, _mm_sad_epu8(vectorAt(bytes + i), zero));
    odd = _mm_add_epi64(odd, _mm_sad_epu8(vectorAt(bytes + i + 16), zero));
  }
  const __m128i both = _mm_add_epi64(even, odd);
  const int total = _mm_cvtsi128_si32(_mm_add_epi64(both, _mm_unpackhi_epi64(both, both)));
  return static_cast<unsigned char>(static_cast<unsigned char>(total) + words::sum(bytes + i, length - i));
}
}  // namespace vectors
namespace scan = vectors;
#else
namespace scan = words;
#endif

}  // namespace zarvik
