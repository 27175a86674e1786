#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace zarvik {

/// A growing block of bytes that is written by hand: write behind the last byte, tell where the writing ended.
///
/// There is always room for `spare` bytes more, so that the usual field needs no look before it is written. A copy has
/// the bytes, and a block of its own. The block is kept when the bytes are forgotten.
class FieldBuffer {
 public:
  static constexpr std::size_t spare = 400;

  FieldBuffer() { reserve(0); }
  FieldBuffer(const FieldBuffer& other) : FieldBuffer() { append(other.view()); }
  FieldBuffer& operator=(const FieldBuffer& other);

  char* next() const { return behind; }  ///< where the next byte goes
  void setNext(char* to) {               ///< the bytes up to here are written; without room for more, none of them is
    if (to > full) [[unlikely]]
      return growTo(to);  // with nothing left to do here, so that the usual field need save no register
    behind = to;
  }

  void append(std::string_view bytes);
  void clear() { behind = block.get(); }
  /// Room for so many bytes more, and the spare; std::bad_array_new_length beyond 1 GB.
  void reserve(std::size_t size) { behind = grow(behind, size); }

  std::size_t size() const { return static_cast<std::size_t>(behind - block.get()); }
  std::string_view view() const { return {block.get(), size()}; }  ///< until the next change

 private:
  void growTo(char* end);
  char* grow(char* end, std::size_t added);

  std::unique_ptr<char[]> block;
  char* behind = nullptr;
  char* full = nullptr;  ///< the spare bytes begin here
};

/// A tag of up to seven characters with its '=', in one word: made by the compiler where the tag is a constant.
class FieldTag {
 public:
  static constexpr std::size_t longest = 7;

  FieldTag(const char* tag, std::size_t length) : size(length + 1) {
    // Written out, so that nothing but the sum is left of it.
    word = byte(tag, 0) | byte(tag, 1) | byte(tag, 2) | byte(tag, 3) | byte(tag, 4) | byte(tag, 5) | byte(tag, 6) |
           byte(tag, 7);
  }

  /// Writes it, eight bytes in any case, and gives the end.
  char* put(char* out) const {
    std::memcpy(out, &word, sizeof word);
    return out + size;
  }

 private:
  /// The i-th character, at the place that memory gives it.
  std::uint64_t byte(const char* tag, std::size_t i) const {
    const char c = i + 1 < size ? tag[i] : i + 1 == size ? '=' : '\0';
    const std::size_t place = std::endian::native == std::endian::little ? i : 7 - i;
    return std::uint64_t{static_cast<unsigned char>(c)} << 8 * place;
  }

  std::uint64_t word = 0;
  std::size_t size;
};

}  // namespace zarvik
