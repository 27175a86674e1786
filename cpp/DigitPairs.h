#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace zarvik {

/// The texts "00" to "99", one behind the other.
inline constexpr auto digitPairs = [] {
  std::array<char, 200> texts{};
  for (unsigned int i = 0; i < 100; ++i) {
    texts[2 * i] = static_cast<char>('0' + i / 10);
    texts[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return texts;
}();

/// The two digits of `n` below 100; gives their end.
inline char* putPair(char* out, std::uint64_t n) {
  std::memcpy(out, &digitPairs[2 * n], 2);
  return out + 2;
}

}  // namespace zarvik
