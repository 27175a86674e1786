#include "zkstring.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstdint>
#include <iterator>
#include <new>
#include <string>

#include "Conversion.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/zkstring";
constexpr unsigned int notFound = ~0U;

/// The capacity of a block for `length` characters and a terminator.
unsigned int capacityFor(std::size_t length) {
  if (length >= notFound) throw std::bad_array_new_length();
  return static_cast<unsigned int>(length) + 1;
}

std::uint64_t wordAt(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// The position of the first byte in which `a` and `b` differ, `n` if they do not. Eight bytes at a time: the last
/// eight begin among those before them, which are equal by then.
unsigned int firstDifference(const char* a, const char* b, unsigned int n) {
  unsigned int i = 0;
  if (n < 8) {
    while (i < n && a[i] == b[i]) ++i;
    return i;
  }
  for (;; i = std::min(i + 8, n - 8)) {
    if (const std::uint64_t difference = wordAt(a + i) ^ wordAt(b + i)) {
      const int bits =
          std::endian::native == std::endian::little ? std::countr_zero(difference) : std::countl_zero(difference);
      return i + static_cast<unsigned int>(bits) / 8;
    }
    if (i == n - 8) return n;
  }
}

const char* findByte(const char* from, const char* end, char byte) {
  return static_cast<const char*>(
      std::memchr(from, static_cast<unsigned char>(byte), static_cast<std::size_t>(end - from)));
}

#ifdef __GLIBC__
/// The first `pattern` in the text, in time that no pattern can make quadratic.
const char* findLong(const char* from, const char* end, const char* pattern, unsigned int n) {
  return static_cast<const char*>(memmem(from, static_cast<std::size_t>(end - from), pattern, n));
}
#else
const char* findLong(const char* from, const char* end, const char* pattern, unsigned int n) {
  const char* const hit = std::search(from, end, pattern, pattern + n);
  return hit == end ? nullptr : hit;
}
#endif

/// The first `pattern` of n >= 1 bytes in the text. Jumping from one first byte to the next is the fastest while
/// these are rare; when they turn out to stand close together, the general search takes over.
const char* findText(const char* from, const char* end, const char* pattern, unsigned int n) {
  constexpr std::ptrdiff_t close = 32;
  const char* const lastStart = end - n + 1;
  for (int closeOnes = 0; closeOnes < 2;) {
    if (from >= lastStart) return nullptr;
    const char* const hit = findByte(from, lastStart, *pattern);
    if (hit == nullptr || std::memcmp(hit, pattern, n) == 0) return hit;
    if (hit - from < close) ++closeOnes;
    from = hit + 1;
  }
  return findLong(from, end, pattern, n);
}

std::string turnedRound(const char* from, const char* end) {
  return {std::reverse_iterator(end), std::reverse_iterator(from)};
}

/// The last `pattern` in the text, as the first one in the text turned round.
const char* findLastLong(const char* from, const char* end, const char* pattern, unsigned int n) {
  const std::string text = turnedRound(from, end);
  const char* const start = text.data();
  const char* const hit = findLong(start, start + text.size(), turnedRound(pattern, pattern + n).data(), n);
  return hit != nullptr ? end - (hit - start) - n : nullptr;
}

/// The last `pattern` of n >= 1 bytes that starts from `from` to `last`. When starts of a long one turn out to be many,
/// the general search takes over.
const char* findLastText(const char* from, const char* last, const char* pattern, unsigned int n) {
  constexpr unsigned int many = 64;
  unsigned int starts = 0;
  for (const char* p = last + 1; p-- != from;) {
    if (*p != *pattern) continue;
    if (std::memcmp(p, pattern, n) == 0) return p;
    if (n > many && ++starts == many) return findLastLong(from, p + n - 1, pattern, n);
  }
  return nullptr;
}
}  // namespace

chararray* chararray::create(unsigned int capacity) { return new (capacity) chararray(capacity); }

chararray* chararray::resize(chararray* old, unsigned int capacity) {
  chararray* const block = create(capacity);
  if (old == nullptr) return block;
  std::memcpy(block->pointer, old->pointer, std::min(old->capacity, capacity));
  old->releaseRef();
  return block;
}

chararray::~chararray() noexcept(false) {
  if (refCount != 0) throwFrom(here, TransformException("Ref count error. Illegal delete on zkstring object"));
}

void chararray::destroy() { delete this; }

constinit const zkstring zkstring::EMPTY;

zkstring::zkstring(const char* text) { init(text, text != nullptr ? lengthOf(text) : 0); }

zkstring::zkstring(unsigned int n, char c) {
  array = chararray::create(capacityFor(n));
  pointer = array->getPtr();
  count = n;
  std::memset(array->getPtr(), c, n);
}

zkstring& zkstring::operator=(const char* text) { return assign(text, lengthOf(text)); }

zkstring& zkstring::assign(const char* bytes, unsigned int length) {
  return *this = zkstring(bytes, length);  // the old block goes last: `bytes` may lie in it
}

zkstring& zkstring::assign(char value) {
  charToString(value, ensureCleanFree(25));
  count = value != '\0' ? 1 : 0;  // the terminator tells the length
  return *this;
}

zkstring& zkstring::assign(int value) {
  intToString(value, *this);
  return *this;
}

zkstring& zkstring::assign(float value) {
  floatToString(value, *this);
  return *this;
}

zkstring& zkstring::assign(double value) {
  doubleToString(value, *this);
  return *this;
}

zkstring& zkstring::assign(__int64 value) {
  dlongToString(value, *this);
  return *this;
}

const char* zkstring::c_str() const {
  if (array == nullptr) return pointer;
  // A text that fills its block but for the reserved byte starts at the block's start, shared or not.
  if (count + 1 != array->length()) {
    chararray* const own = chararray::create(capacityFor(count));
    std::memcpy(own->getPtr(), pointer, count);
    array->releaseRef();
    array = own;
    pointer = own->getPtr();
  }
  array->getPtr()[count] = '\0';
  return pointer;
}

int zkstring::compare(const char* bytes, unsigned int length) const {
  const unsigned int common = std::min(count, length);
  const unsigned int i = firstDifference(pointer, bytes, common);
  if (i == common) return static_cast<int>(count - length);
  return static_cast<signed char>(pointer[i]) - static_cast<signed char>(bytes[i]);
}

unsigned int zkstring::find(const zkstring& pattern, unsigned int pos) const {
  if (count < pattern.count) return notFound;
  if (pos >= count) return count == 0 && pos == 0 ? 0 : notFound;
  if (pattern.empty()) return pos;
  if (pattern.count > count - pos) return notFound;
  const char* const hit = findText(pointer + pos, pointer + count, pattern.pointer, pattern.count);
  return hit != nullptr ? static_cast<unsigned int>(hit - pointer) : notFound;
}

unsigned int zkstring::find(int c, unsigned int pos) const {
  if (pos >= count || c != static_cast<signed char>(c)) return notFound;
  const char* const hit = findByte(pointer + pos, pointer + count, static_cast<char>(c));
  return hit != nullptr ? static_cast<unsigned int>(hit - pointer) : notFound;
}

unsigned int zkstring::rfind(const zkstring& pattern, unsigned int pos) const {
  if (pattern.empty()) return std::min(count, pos);
  if (pattern.count > count) return notFound;
  const char* const last = pointer + std::min(count - pattern.count, pos);
  const char* const hit = findLastText(pointer, last, pattern.pointer, pattern.count);
  return hit != nullptr ? static_cast<unsigned int>(hit - pointer) : notFound;
}

unsigned int zkstring::rfind(char c, unsigned int pos) const {
  for (unsigned int i = pos < count ? pos + 1 : count; i-- > 0;) {
    if (pointer[i] == c) return i;
  }
  return notFound;
}

zkstring zkstring::span(const zkstring& other) const {
  if (pointer == nullptr || other.pointer == nullptr || other.pointer < pointer) return EMPTY;
  return zkstring(pointer, distance(other) + other.count, array, true);
}

void zkstring::init(const char* bytes, unsigned int length) {
  array = chararray::create(capacityFor(length));
  pointer = array->getPtr();
  count = length;
  if (length != 0) std::memcpy(array->getPtr(), bytes, length);
}

char* zkstring::ensureCleanFree(unsigned int n) {
  count = 0;
  if (array == nullptr || array->getRefCount() >= 2 || array->length() <= n) {
    chararray* const own = chararray::create(capacityFor(n));
    clean();
    array = own;
  }
  pointer = array->getPtr();
  return array->getPtr();
}

bool zkstring::equalsIgnoreCase(const char* a, const char* b, unsigned int n) {
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  return std::equal(a, a + n, b, [lower](char x, char y) { return lower(x) == lower(y); });
}

zkstring addzkstrings(const char* a, unsigned int na, const char* b, unsigned int nb) {
  zkstring sum;
  sum.array = chararray::create(capacityFor(std::size_t{na} + nb));
  char* const text = sum.array->getPtr();
  if (na != 0) std::memcpy(text, a, na);
  if (nb != 0) std::memcpy(text + na, b, nb);
  sum.pointer = text;
  sum.count = na + nb;
  return sum;
}

}  // namespace zarvik
