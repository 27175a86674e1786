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

/// The sum of the bytes modulo 256: a loop that compilers know how to turn into vectors, where there are any.
inline unsigned char sum(const char* bytes, std::size_t length) {
  unsigned int total = 0;
  for (std::size_t i = 0; i < length; ++i) total += static_cast<unsigned char>(bytes[i]);
  return static_cast<unsigned char>(total);
}
}  // namespace words

#ifdef __SSE2__
namespace vectors {

inline __m128i vectorAt(const char* bytes) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)); }

inline unsigned int places(const char* window, const char* wanted) {
  return static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(vectorAt(window), vectorAt(wanted))));
}

/// Sixteen sums side by side, each modulo 256 as the whole is; psadbw adds them up in the end.
inline unsigned char sum(const char* bytes, std::size_t length) {
  if (length < windowSize) return words::sum(bytes, length);
  __m128i sums = _mm_setzero_si128();
  const char* window = bytes;
  const auto add = [&](std::size_t windows) {
    for (std::size_t i = 0; i < windows; ++i) sums = _mm_add_epi8(sums, vectorAt(window + i * windowSize));
    window += windows * windowSize;
  };
  for (std::size_t rounds = length / (8 * windowSize); rounds != 0; --rounds) add(8);
  if ((length & 4 * windowSize) != 0) add(4);
  if ((length & 2 * windowSize) != 0) add(2);
  if ((length & windowSize) != 0) add(1);
  // The bytes that are left, at the end of a last window; those before them are taken for 0.
  const __m128i place = _mm_set_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
  const __m128i isBefore = _mm_cmpgt_epi8(_mm_set1_epi8(static_cast<char>(windowSize - length % windowSize)), place);
  sums = _mm_add_epi8(sums, _mm_andnot_si128(isBefore, vectorAt(bytes + length - windowSize)));
  sums = _mm_sad_epu8(sums, _mm_setzero_si128());
  return static_cast<unsigned char>(_mm_cvtsi128_si32(_mm_add_epi64(sums, _mm_unpackhi_epi64(sums, sums))));
}
}  // namespace vectors
namespace scan = vectors;
#else
namespace scan = words;
#endif

}  // namespace zarvik
