#pragma once

#include "zkstring.h"

namespace zarvik {

/// The mutable builder of texts, accepted wherever a string is.
///
/// Edits write into the block without a look at its count. Text handed in by a constructor is copied, so a new buffer
/// is private; copying or assigning a buffer, and making a string of it, shares its block, and later edits show
/// through there until the buffer grows into a new one. So whoever hands out the text stops editing the buffer.
/// Positions are bytes from 0 and lie within the text or at its end; counts of characters to remove are clipped.
class zkstringbuffer : public zkstring {
 public:
  zkstringbuffer() = default;
  zkstringbuffer(const char* text) : zkstringbuffer(text, text != nullptr ? lengthOf(text) : 0) {}
  zkstringbuffer(const char* bytes, unsigned int length) : zkstring(bytes, length) {}
  zkstringbuffer(const zkstring& text) : zkstring(text.data(), text.length()) {}
  using zkstring::operator=;  // shares the block, as the assignment of strings does

  zkstringbuffer& append(char c) {
    if (!hasRoom(1)) [[unlikely]]
      return appendGrowing(&c, 1);
    const unsigned int end = count;
    count = end + 1;  // before the byte, which might overwrite anything for all that the compiler knows
    start()[end] = c;
    return *this;
  }
  zkstringbuffer& append(int n, char c);  ///< n times c; nothing for n below 1
  zkstringbuffer& append(const char* bytes, unsigned int length) {
    if (!hasRoom(length)) [[unlikely]]
      return appendGrowing(bytes, length);
    // A view taken before an edit may reach over the end.
    if (length != 0) std::memmove(start() + count, bytes, length);
    count += length;
    return *this;
  }
  zkstringbuffer& append(const char* text) { return append(text, lengthOf(text)); }
  zkstringbuffer& append(const zkstring& text) { return append(text.data(), text.length()); }
  zkstringbuffer& operator+=(char c) { return append(c); }
  zkstringbuffer& operator+=(const zkstring& text) { return append(text); }

  zkstringbuffer& insert(unsigned int pos, const char* bytes, unsigned int length);
  zkstringbuffer& insert(unsigned int pos, const char* text) { return insert(pos, text, lengthOf(text)); }
  zkstringbuffer& insert(unsigned int pos, char c) { return insert(pos, &c, 1); }
  zkstringbuffer& insert(unsigned int pos, const zkstring& text) { return insert(pos, text.data(), text.length()); }

  zkstringbuffer& erase(unsigned int pos, unsigned int n);

  zkstringbuffer& replace(unsigned int pos, unsigned int n, const char* bytes, unsigned int length);
  zkstringbuffer& replace(unsigned int pos, unsigned int n, const char* text) {
    return replace(pos, n, text, lengthOf(text));
  }
  zkstringbuffer& replace(unsigned int pos, unsigned int n, const zkstring& text) {
    return replace(pos, n, text.data(), text.length());
  }

  /// Adds what the capacity lacks of `n` on top of the length; this does not promise room for n more characters.
  void reserve(unsigned int n);

  /// For writers of text: the end of the text, with room for `n` more characters; `setBufferLength` then tells how many
  /// there are in all.
  char* getTail(std::size_t n) {
    ensureFree(n);
    return start() + count;
  }

  void clear() { count = 0; }  ///< keeps the block

  char& operator[](unsigned int i) { return getMutableBuffer()[i]; }
  using zkstring::operator[];

 private:
  char* start() const { return array->getPtr(); }

  /// Whether the text stands at the start of a block with room for `extra` more characters and a terminator.
  bool hasRoom(std::size_t extra) const {
    return array != nullptr && pointer == start() && std::size_t{count} + extra < array->length();
  }

  void ensureFree(std::size_t extra) {
    if (!hasRoom(extra)) grow(extra);
  }
  void grow(std::size_t extra);  ///< brings the text to the block's start, in a larger block if the rule asks for it
  zkstringbuffer& appendGrowing(const char* bytes, unsigned int length);
  bool holds(const char* bytes) const;  ///< whether the address lies in this buffer's block

  /// From the first character of the text to the start of the block, so 0 or negative; 0 without a block.
  unsigned int bufferOffset() const { return array != nullptr ? static_cast<unsigned int>(start() - pointer) : 0; }
  char* getMutableBuffer() {
    if (array == nullptr || bufferOffset() != 0) grow(0);
    return start();
  }
};

}  // namespace zarvik
