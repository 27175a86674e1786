#pragma once

#include "zkstring.h"

namespace zarvik {

/// A value of plain bytes, with the representation of a string: a view into a counted block, which it may share with
/// strings, or into constant storage without a block.
///
/// Copying shares the block and copies no bytes. Positions are bytes from 0 and are not checked in a release build.
/// A value and all that share its block belong to one thread at a time.
class Binary : private zkstring {
 public:
  constexpr Binary() noexcept = default;
  Binary(const zkstring& text) : zkstring(text) {}  ///< shares the block
  Binary(zkstring&& text) noexcept : zkstring(std::move(text)) {}
  Binary(const char* bytes, unsigned int length) : zkstring(bytes, length) {}  ///< copies
  /// Copies, or with `asStatic` only looks at bytes that outlive this value and all its copies.
  Binary(const char* bytes, unsigned int length, bool asStatic);
  explicit Binary(unsigned int n);                    ///< n bytes of undefined contents
  Binary(unsigned int n, char c) : zkstring(n, c) {}  ///< n times c

  using zkstring::data;
  using zkstring::empty;
  using zkstring::length;
  using zkstring::size;

  Binary& assign(const Binary& other) { return *this = other; }
  Binary& assign(const char* bytes, unsigned int length);  ///< copies; `bytes` may lie in this value's own block

  int at(unsigned int i) const { return static_cast<signed char>(zkstring::at(i)); }  ///< -128 to 127

  /// Writes into the block, shared or not, so that all who share it see the new byte; there must be a block.
  void set(unsigned int i, char c) const {
    assert(i < count && array != nullptr);
    array->getPtr()[pointer - array->getPtr() + i] = c;
  }

  /// A copy of `length` bytes from `start` on, which lie within this value.
  Binary sub(int start, int length) const;

  bool operator==(const Binary& other) const { return zkstring::operator==(other); }
  bool operator!=(const Binary& other) const { return !(*this == other); }
  bool operator<(const Binary& /*other*/) const { return false; }  ///< odd on purpose: bytes have no order

  zkstring toASCIIString() const { return *this; }  ///< the bytes as they are, sharing the block
  zkstring toString() const { return *this; }       ///< the same

  zkstring toHexString() const;     ///< two upper-case digits a byte
  zkstring toBase64String() const;  ///< with padding, without line breaks

  /// Two digits a byte, in either case; of a text of odd length the whole pairs. There is no failure: another
  /// character counts as its upper-case code minus 55.
  static Binary fromHexString(const zkstring& text);

  /// Characters outside the alphabet, line breaks among them, are skipped. The length follows from the characters
  /// before the first '='; bytes that no whole group of four gives are 0.
  static Binary fromBase64String(const zkstring& text);

 protected:
  static constexpr const char* EMPTY_BIN_LITERAL = noText;  ///< where empty values without a block point
};

}  // namespace zarvik
