#pragma once

#include <cassert>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

#ifndef __int64
/// The signed 64-bit integer of the interface, where the compiler has no such type of its own.
using __int64 = long long;
#endif

namespace zarvik {

/// The counted block of characters behind strings and binary values: one allocation, the header and directly
/// behind it `capacity` bytes, of which strings keep one for a terminator.
///
/// The count is a plain integer: a block and all that share it belong to one thread at a time.
class chararray {
 public:
  /// A block of `capacity` bytes, uninitialised, with count 1: the caller holds it.
  static chararray* create(unsigned int capacity);

  /// A new block of `capacity` bytes holding a copy of `old`'s bytes (the whole block, as far as both reach), with
  /// count 1. Takes one count from `old`, which may be null and goes when nobody else holds it.
  static chararray* resize(chararray* old, unsigned int capacity);

  /// Throws TransformException when somebody still holds the block; `releaseRef` is the only rightful way here.
  ~chararray() noexcept(false);

  chararray(const chararray&) = delete;
  chararray& operator=(const chararray&) = delete;

  void addRef() { ++refCount; }
  void releaseRef() {
    if (--refCount == 0) destroy();
  }
  int getRefCount() const { return refCount; }

  char* getPtr() const { return pointer; }
  char* getCharPtr() const { return pointer; }
  unsigned int length() const { return capacity; }  ///< the capacity in bytes, whatever is in use
  char charAt(unsigned int i) const { return pointer[i]; }

  static void operator delete(void* block) { ::operator delete(block); }

 private:
  explicit chararray(unsigned int capacity)
      : pointer(reinterpret_cast<char*>(this + 1)), capacity(capacity), refCount(1) {}

  static void* operator new(std::size_t header, unsigned int capacity) { return ::operator new(header + capacity); }
  static void operator delete(void* block, unsigned int) { ::operator delete(block); }

  void destroy();
  void checkThreadOwner() {}

  char* pointer;
  unsigned int capacity;
  int refCount;
};

/// A byte string: a view (pointer and length) into a counted block, or into constant storage that needs no count.
///
/// Copying, passing by value and taking a substring copy no characters and allocate nothing. Characters are counted,
/// not terminated, and may be 0; `data()` is not terminated, `c_str()` is. There is no null string, only the empty
/// one. Positions are bytes from 0 and are not checked in a release build. "Not found" is the unsigned value with all
/// bits set. A string and all strings that share its block belong to one thread at a time; strings without a block
/// (literals, `EMPTY`) may be read by all.
class zkstring {
 public:
  static const zkstring EMPTY;

  constexpr zkstring() noexcept = default;
  constexpr zkstring(const zkstring& other) : pointer(other.pointer), count(other.count), array(other.array) {
    if (array != nullptr) array->addRef();
  }
  constexpr zkstring(zkstring&& other) noexcept
      : pointer(std::exchange(other.pointer, noText)),
        count(std::exchange(other.count, 0U)),
        array(std::exchange(other.array, nullptr)) {}
  zkstring(const char* text);                       ///< copies up to the terminator; null gives an empty string
  zkstring(const char* bytes, unsigned int length)  ///< copies `length` bytes, zeros included
  {
    init(bytes, length);
  }
  zkstring(unsigned int n, char c);  ///< n times c
  constexpr ~zkstring() {
    if (array != nullptr) array->releaseRef();
  }

  /// An empty-handed string over constant text that outlives it and all its copies.
  static constexpr zkstring static_string(const char* text) { return zkstring(text, nullptr); }

  zkstring& operator=(const zkstring& other) { return assign(other); }
  zkstring& operator=(zkstring&& other) noexcept {
    zkstring taken(std::move(other));
    std::swap(pointer, taken.pointer);
    std::swap(count, taken.count);
    std::swap(array, taken.array);
    return *this;
  }
  zkstring& operator=(const char* text);  ///< `text` is not null and may lie in this string's own block

  zkstring& assign(const zkstring& other) {
    chararray* const old = array;
    if (other.array != nullptr) other.array->addRef();
    assign0(other.pointer, other.count, other.array, false);
    clean(old);
    return *this;
  }
  zkstring& assign(const char* bytes, unsigned int length);  ///< `bytes` may lie in this string's own block

  /// The contents become the text form of the value (`charToString`, `intToString` and so on), in this string's own
  /// block when nobody shares it and it has room.
  zkstring& assign(char value);
  zkstring& assign(int value);
  zkstring& assign(float value);
  zkstring& assign(double value);
  zkstring& assign(__int64 value);

  const char* data() const { return pointer; }

  /// The text with a terminator behind it, valid until the string is next changed. A view that does not reach its
  /// block's reserved last byte moves into a block of its own first. A string without a block answers its pointer as
  /// it is, so a slice of a literal is terminated where the literal ends.
  const char* c_str() const;

  unsigned int length() const { return count; }
  unsigned int size() const { return count; }
  bool empty() const { return count == 0; }
  char at(unsigned int i) const { return (*this)[i]; }
  char operator[](unsigned int i) const {
    assert(i < count);
    return pointer[i];
  }
  const zkstring& toString() const { return *this; }
  void toString(zkstring& out) const { out = *this; }

  /// Bytes from this string's first character to that of `other`, a view of the same text further on.
  unsigned int distance(const zkstring& other) const { return static_cast<unsigned int>(other.pointer - pointer); }

  bool operator==(const zkstring& other) const { return equals(other); }
  bool operator==(const char* text) const { return equals(text, lengthOf(text)); }
  bool operator!=(const zkstring& other) const { return !equals(other); }
  bool operator!=(const char* text) const { return !equals(text, lengthOf(text)); }
  bool operator<(const zkstring& other) const { return compare(other) < 0; }
  bool operator<(const char* text) const { return compare(text) < 0; }
  bool operator>(const zkstring& other) const { return compare(other) > 0; }
  bool operator>(const char* text) const { return compare(text) > 0; }

  /// The first difference of two bytes as signed 8-bit values, so that bytes from 0x80 sort below ASCII; without one
  /// the difference of the lengths.
  int compare(const zkstring& other) const { return compare(other.pointer, other.count); }
  int compare(const char* text) const { return compare(text, lengthOf(text)); }
  int compare(const char* bytes, unsigned int length) const;

  /// The first match at or behind `pos`. An empty pattern is found at `pos`, but at the end only of an empty string.
  unsigned int find(const zkstring& pattern, unsigned int pos) const;
  unsigned int find(const zkstring& pattern) const { return find(pattern, 0); }
  /// `c` is compared with the sign-extended byte: bytes from 0x80 are found by negative values only.
  unsigned int find(int c, unsigned int pos) const;
  unsigned int find(int c) const { return find(c, 0); }

  /// The last match that starts at or before `pos`.
  unsigned int rfind(const zkstring& pattern, unsigned int pos) const;
  unsigned int rfind(const zkstring& pattern) const { return rfind(pattern, count); }
  unsigned int rfind(char c, unsigned int pos) const;
  unsigned int rfind(char c) const { return rfind(c, count - 1); }

  /// Slices share the block. `pos` lies within the string or at its end.
  zkstring substr(unsigned int pos) const {
    assert(pos <= count);
    return zkstring(pointer + pos, count - pos, array, true);
  }
  zkstring substr(unsigned int pos, unsigned int n) const {
    assert(pos <= count);
    return zkstring(pointer + pos, n < count - pos ? n : count - pos, array, true);
  }
  void substr(unsigned int pos, zkstring& out) const { out = substr(pos); }
  void substr(unsigned int pos, unsigned int n, zkstring& out) const {  ///< n is taken as it stands, not clipped
    if (out.array == array) [[likely]]
      return out.assign0(pointer + pos, n, array, false);  // counts one on the block already
    out = zkstring(pointer + pos, n, array, true);
  }

  /// The text from this string's start to the end of `other`, a view of the same text that starts no earlier;
  /// otherwise empty.
  zkstring span(const zkstring& other) const;

  zkstring operator+(const zkstring& other) const;
  friend zkstring addzkstrings(const char* a, unsigned int na, const char* b, unsigned int nb);

  /// For writers of text: room for `n` characters in a block of this string's own; `setBufferLength` then tells how
  /// many are there. The old contents are gone.
  char* getBuffer(int n) { return ensureCleanFree(static_cast<unsigned int>(n)); }
  void setBufferLength(int n) { count = static_cast<unsigned int>(n); }

 protected:
  static constexpr char noText[1] = "";  ///< where empty strings without a block point

  /// Over constant text, without a block; the second argument only tells this form from the others.
  constexpr zkstring(const char* text, const char* /*unused*/) : pointer(text), count(lengthOf(text)) {}

  /// A view of `bytes`, which `array` (may be null) keeps alive; takes a count on it if `addRef` says so.
  constexpr zkstring(const char* bytes, unsigned int length, chararray* array, bool addRef)
      : pointer(bytes), count(length), array(array) {
    if (addRef && array != nullptr) array->addRef();
  }

  static constexpr unsigned int lengthOf(const char* text) {
    return static_cast<unsigned int>(std::char_traits<char>::length(text));
  }

  void init(const char* bytes, unsigned int length);  ///< a new block with a copy; releases nothing
  void clean() { clean(array); }
  static void clean(chararray* array) {
    if (array != nullptr) array->releaseRef();
  }
  void copyToThis(const zkstring& other) { assign0(other.pointer, other.count, other.array, true); }
  void assign0(const char* bytes, unsigned int length, chararray* block, bool addRef) {
    pointer = bytes;
    count = length;
    array = block;
    if (addRef && block != nullptr) block->addRef();
  }
  unsigned int capacity() const { return array != nullptr ? array->length() : 0; }

  /// Empties the string and gives room for `n` characters and a terminator: its own block when nobody shares it and
  /// it is large enough, else a new one.
  char* ensureCleanFree(unsigned int n);

  // Mutable, since c_str() of a string that looks constant may move the text to a block of its own.
  mutable const char* pointer = noText;
  mutable unsigned int count = 0;
  mutable chararray* array = nullptr;

 private:
  bool equals(const zkstring& other) const { return equals(other.pointer, other.count); }
  bool equals(const char* bytes, unsigned int length) const {
    return count == length && equals(pointer, bytes, length);
  }
  static bool equals(const char* a, const char* b, unsigned int n) {
    return a == b || n == 0 || std::memcmp(a, b, n) == 0;
  }
  static bool equalsIgnoreCase(const char* a, const char* b, unsigned int n);
};

/// A constant text as a string: no block, no allocation. Objects of static storage are constant-initialised, so they
/// may be read by the static initialisers of any module.
class zkstringliteral : public zkstring {
 public:
  constexpr zkstringliteral(const char* text) : zkstring(text, nullptr) {}
};

/// The two texts one behind the other in one new block, with room for the terminator.
zkstring addzkstrings(const char* a, unsigned int na, const char* b, unsigned int nb);

inline zkstring zkstring::operator+(const zkstring& other) const {
  return addzkstrings(pointer, count, other.pointer, other.count);
}
inline zkstring operator+(const zkstring& a, char b) { return addzkstrings(a.data(), a.length(), &b, 1); }
inline zkstring operator+(char a, const zkstring& b) { return addzkstrings(&a, 1, b.data(), b.length()); }
inline zkstring operator+(const zkstring& a, const char* b) {
  return addzkstrings(a.data(), a.length(), b, static_cast<unsigned int>(std::strlen(b)));
}
inline zkstring operator+(const char* a, const zkstring& b) {
  return addzkstrings(a, static_cast<unsigned int>(std::strlen(a)), b.data(), b.length());
}
inline bool operator==(const char* a, const zkstring& b) { return b == a; }

}  // namespace zarvik
