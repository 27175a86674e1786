#include "formula/TextFunctions.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <utility>
#include <vector>

#include "Conversion.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/formula/TextFunctions";
constexpr unsigned int notFound = ~0U;

/// A new text of `n` bytes, which `fill` writes.
template <class Fill>
zkstring newText(std::size_t n, Fill fill) {
  if (n >= std::numeric_limits<unsigned int>::max()) throw std::bad_array_new_length();
  zkstring text;
  fill(text.getBuffer(static_cast<int>(n)));
  text.setBufferLength(static_cast<int>(n));
  return text;
}

char* put(char* out, const char* bytes, std::size_t n) {
  if (n != 0) std::memcpy(out, bytes, n);
  return out + n;
}

/// A copy of `text` in which `part` stands in place of the n bytes from `pos`; n is clipped at the end.
zkstring spliced(const zkstring& text, unsigned int pos, unsigned int n, const zkstring& part) {
  const unsigned int tail = pos + std::min(n, text.length() - pos);
  return newText(std::size_t{text.length()} - (tail - pos) + part.length(), [&](char* out) {
    out = put(out, text.data(), pos);
    out = put(out, part.data(), part.length());
    put(out, text.data() + tail, text.length() - tail);
  });
}

/// A position or count as an unsigned one; below 0 it is 0.
unsigned int notNegative(int value) { return static_cast<unsigned int>(std::max(value, 0)); }

/// Whether `index` is the position of a byte of `text`.
bool isInside(const zkstring& text, int index) {
  return index >= 0 && static_cast<unsigned int>(index) < text.length();
}

char lowerOf(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }
char upperOf(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

/// The first `wanted` at or behind `from`, which lies within the text or at its end; -1 if there is none. For texts in
/// which it is not far, as between short fields: there a few words are quicker than a call.
unsigned int nextByte(const zkstring& text, unsigned int from, char wanted) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t low7 = 0x7F * ones;
  const std::uint64_t pattern = ones * static_cast<unsigned char>(wanted);
  for (int words = 0; words < 4 && text.length() - from >= 8; ++words, from += 8) {
    std::uint64_t word;
    std::memcpy(&word, text.data() + from, 8);
    word ^= pattern;
    const std::uint64_t hits = ~(((word & low7) + low7) | word | low7);  // the top bit of each byte that is now 0
    if (hits == 0) continue;
    const bool little = std::endian::native == std::endian::little;
    return from + static_cast<unsigned int>(little ? std::countr_zero(hits) : std::countl_zero(hits)) / 8;
  }
  return text.find(static_cast<signed char>(wanted), from);
}

/// The first `pattern`, of at least one byte, at or behind `from`; -1 if there is none.
unsigned int nextMatch(const zkstring& text, unsigned int from, const zkstring& pattern) {
  return pattern.length() == 1 ? nextByte(text, from, pattern[0]) : text.find(pattern, from);
}

/// How often `wanted` stands in `text`. In runs that one byte can count: so the compiler counts many bytes at once.
unsigned int countOf(const zkstring& text, char wanted) {
  unsigned int count = 0;
  const char* byte = text.data();
  for (unsigned int rest = text.length(); rest != 0;) {
    const unsigned int run = std::min(rest, 240U);
    unsigned char hits = 0;
    for (unsigned int i = 0; i < run; ++i) hits = static_cast<unsigned char>(hits + (byte[i] == wanted ? 1 : 0));
    count += hits;
    byte += run;
    rest -= run;
  }
  return count;
}

/// For how many parts of `text` to make room. Only one byte is counted quickly, and for few parts it does not pay.
unsigned int expectedParts(const zkstring& delimiter, const zkstring& text, unsigned int limit) {
  constexpr unsigned int few = 10;
  if (delimiter.length() > 1 || limit <= few) return std::min(few, limit);
  return std::min(countOf(text, delimiter[0]) + 1, limit);
}

/// Whether `pattern` stands in `text` at `pos`, where bytes agree that `same` takes for equal.
template <class Same>
bool standsAt(const zkstring& text, unsigned int pos, const zkstring& pattern, Same same) {
  if (pattern.empty()) return true;
  if (pos > text.length() || pattern.length() > text.length() - pos) return false;
  const char* const from = text.data() + pos;
  return std::equal(from, from + pattern.length(), pattern.data(), same);
}

bool sameByte(char a, char b) { return a == b; }
bool sameLetter(char a, char b) { return lowerOf(a) == lowerOf(b); }

/// As standsAt, at the end of `text`.
template <class Same>
bool standsAtEnd(const zkstring& text, const zkstring& pattern, Same same) {
  return pattern.length() <= text.length() && standsAt(text, text.length() - pattern.length(), pattern, same);
}

bool isTrimmed(char c) { return static_cast<signed char>(c) < 33; }

/// Whether all of the eight bytes are trimmed: a byte is kept that is from 33 to 127.
bool areTrimmed(const char* bytes) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  const std::uint64_t from33 = (word & 0x7F * ones) + (128 - 33) * ones;  // the top bit of each byte
  return (from33 & ~word & 0x80 * ones) == 0;
}

/// `text` without the trim bytes at the ends that are asked for: itself when there are none.
zkstring trimmed(const zkstring& text, bool left, bool right) {
  const char* const begin = text.data();
  unsigned int from = 0;
  unsigned int to = text.length();
  if (right) {
    while (to >= 8 && areTrimmed(begin + to - 8)) to -= 8;
    while (to > 0 && isTrimmed(begin[to - 1])) --to;
  }
  if (left) {
    while (to - from >= 8 && areTrimmed(begin + from)) from += 8;
    while (from < to && isTrimmed(begin[from])) ++from;
  }
  return text.substr(from, to - from);
}

template <class Kind>
bool allOf(const zkstring& text, Kind kind) {
  return std::all_of(text.data(), text.data() + text.length(), kind);
}

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool isLetter(char c) { return isUpper(c) || (c >= 'a' && c <= 'z'); }
constexpr bool isUpperOrDigit(char c) { return isUpper(c) || isDigit(c); }
constexpr bool isLetterOrDigit(char c) { return isLetter(c) || isDigit(c); }
}  // namespace

char TextFunctions::charAt(const zkstring& text, int index) {
  if (!isInside(text, index)) throwFrom(here, TransformRuntimeException("Index out of range of string."));
  return text[static_cast<unsigned int>(index)];
}

zkstring TextFunctions::left(const zkstring& text, int n) { return text.substr(0, notNegative(n)); }

zkstring TextFunctions::right(const zkstring& text, int n) {
  return text.substr(text.length() - std::min(notNegative(n), text.length()));
}

zkstring TextFunctions::mid(const zkstring& text, int start, int n) {
  return text.substr(std::min(notNegative(start), text.length()), notNegative(n));
}

zkstring TextFunctions::leftStr(const zkstring& text, const zkstring& pattern) {
  const int hit = findFirst(text, pattern);
  return hit == -1 ? text : text.substr(0, static_cast<unsigned int>(hit));
}

zkstring TextFunctions::rightStr(const zkstring& text, const zkstring& pattern) {
  const int hit = findFirst(text, pattern);
  return hit == -1 ? text : text.substr(static_cast<unsigned int>(hit) + pattern.length());
}

zkstring TextFunctions::trim(const zkstring& text) { return trimmed(text, true, true); }
zkstring TextFunctions::trimLeft(const zkstring& text) { return trimmed(text, true, false); }
zkstring TextFunctions::trimRight(const zkstring& text) { return trimmed(text, false, true); }

zkstring TextFunctions::lpad(const zkstring& text, char c, int n) {
  const unsigned int total = notNegative(n);
  if (total <= text.length()) return text.substr(0, total);
  const unsigned int padding = total - text.length();
  return newText(total, [&](char* out) {
    std::memset(out, c, padding);
    put(out + padding, text.data(), text.length());
  });
}

zkstring TextFunctions::rpad(const zkstring& text, char c, int n) {
  const unsigned int total = notNegative(n);
  if (total <= text.length()) return text.substr(0, total);
  return newText(total,
                 [&](char* out) { std::memset(put(out, text.data(), text.length()), c, total - text.length()); });
}

zkstring TextFunctions::repeat(const zkstring& text, int n) {
  const std::size_t total = std::size_t{text.length()} * notNegative(n);
  return newText(total, [&](char* out) {
    for (const char* const end = out + total; out != end;) out = put(out, text.data(), text.length());
  });
}

zkstring TextFunctions::reverse(const zkstring& text) {
  return newText(text.length(), [&](char* out) { std::reverse_copy(text.data(), text.data() + text.length(), out); });
}

zkstring TextFunctions::deleteCharAt(const zkstring& text, int index) { return deleteStr(text, index, 1); }

zkstring TextFunctions::deleteStr(const zkstring& text, int start, int n) {
  return replace(text, start, n, zkstring());
}

zkstring TextFunctions::insert(const zkstring& text, int index, const zkstring& part) {
  return spliced(text, std::min(notNegative(index), text.length()), 0, part);
}

zkstring TextFunctions::insert(const zkstring& text, int index, char value) {
  return insert(text, index, charToString(value));
}
zkstring TextFunctions::insert(const zkstring& text, int index, int value) {
  return insert(text, index, intToString(value));
}
zkstring TextFunctions::insert(const zkstring& text, int index, float value) {
  return insert(text, index, floatToString(value));
}
zkstring TextFunctions::insert(const zkstring& text, int index, double value) {
  return insert(text, index, doubleToString(value));
}

zkstring TextFunctions::replace(const zkstring& text, const zkstring& from, const zkstring& to) {
  if (from.length() == 1 && to.length() == 1) return replace(text, from[0], to[0]);
  unsigned int hit = from.empty() ? notFound : text.find(from);
  if (hit == notFound) return text;
  zkstringbuffer result;
  result.reserve(text.length());
  unsigned int rest = 0;
  for (; hit != notFound; hit = nextMatch(text, rest, from)) {
    result.append(text.data() + rest, hit - rest).append(to);
    rest = hit + from.length();
  }
  result.append(text.data() + rest, text.length() - rest);
  return result;
}

zkstring TextFunctions::replace(const zkstring& text, const zkstring& from, char to) {
  return replace(text, from, charToString(to));
}
zkstring TextFunctions::replace(const zkstring& text, char from, const zkstring& to) {
  return replace(text, charToString(from), to);
}

zkstring TextFunctions::replace(const zkstring& text, char from, char to) {
  if (findFirst(text, from) == -1) return text;
  return newText(text.length(),
                 [&](char* out) { std::replace_copy(text.data(), text.data() + text.length(), out, from, to); });
}

zkstring TextFunctions::replace(const zkstring& text, int start, int n, const zkstring& part) {
  if (!isInside(text, start) || n < 0) return text;
  return spliced(text, static_cast<unsigned int>(start), static_cast<unsigned int>(n), part);
}

zkstring TextFunctions::replace(const zkstring& text, int index, char c) {
  return replace(text, index, 1, charToString(c));
}

int TextFunctions::findFirst(const zkstring& text, const zkstring& pattern, int from) {
  return static_cast<int>(text.find(pattern, notNegative(from)));
}

int TextFunctions::findFirst(const zkstring& text, char c, int from) {
  return static_cast<int>(text.find(static_cast<signed char>(c), notNegative(from)));
}

int TextFunctions::findLast(const zkstring& text, const zkstring& pattern, int from) {
  return from < 0 ? -1 : static_cast<int>(text.rfind(pattern, static_cast<unsigned int>(from)));
}

int TextFunctions::findLast(const zkstring& text, char c, int from) {
  return from < 0 ? -1 : static_cast<int>(text.rfind(c, static_cast<unsigned int>(from)));
}

bool TextFunctions::startsWith(const zkstring& text, const zkstring& pattern, int from) {
  return standsAt(text, notNegative(from), pattern, sameByte);
}

bool TextFunctions::startsWithIgnoreCase(const zkstring& text, const zkstring& pattern) {
  return startsWithIgnoreCase(text, pattern, 0);
}

bool TextFunctions::startsWithIgnoreCase(const zkstring& text, const zkstring& pattern, int from) {
  return standsAt(text, notNegative(from), pattern, sameLetter);
}

bool TextFunctions::endsWith(const zkstring& text, const zkstring& pattern) {
  return standsAtEnd(text, pattern, sameByte);
}

bool TextFunctions::endsWithIgnoreCase(const zkstring& text, const zkstring& pattern) {
  return standsAtEnd(text, pattern, sameLetter);
}

int TextFunctions::compareIgnoreCase(const zkstring& a, const zkstring& b) {
  const unsigned int common = std::min(a.length(), b.length());
  for (unsigned int i = 0; i < common; ++i) {
    const int difference = static_cast<signed char>(lowerOf(a[i])) - static_cast<signed char>(lowerOf(b[i]));
    if (difference != 0) return difference;
  }
  return static_cast<int>(a.length() - b.length());
}

bool TextFunctions::isAlpha(const zkstring& text) { return allOf(text, isLetter); }
bool TextFunctions::isAlpha(char c) { return isLetter(c); }
bool TextFunctions::isAlphaUpper(const zkstring& text) { return allOf(text, isUpper); }
bool TextFunctions::isAlphaUpper(char c) { return isUpper(c); }
bool TextFunctions::isAlphaNum(const zkstring& text) { return allOf(text, isLetterOrDigit); }
bool TextFunctions::isAlphaNum(char c) { return isLetterOrDigit(c); }
bool TextFunctions::isAlphaUpperNum(const zkstring& text) { return allOf(text, isUpperOrDigit); }
bool TextFunctions::isAlphaUpperNum(char c) { return isUpperOrDigit(c); }
bool TextFunctions::isNum(const zkstring& text) { return allOf(text, isDigit); }
bool TextFunctions::isNum(char c) { return isDigit(c); }

StringList TextFunctions::split(const zkstring& delimiter, const zkstring& text, int limit) {
  if (text.empty()) return {};
  if (delimiter.empty()) return StringList().add(text);
  std::vector<zkstring> parts;  // not a list as yet: that would have room of its own already
  parts.reserve(expectedParts(delimiter, text, notNegative(limit)));
  for (unsigned int start = 0; start < text.length() && static_cast<int>(parts.size()) < limit;) {
    const unsigned int hit = nextMatch(text, start, delimiter);
    if (hit == notFound) {
      parts.push_back(text.substr(start));
      break;
    }
    parts.push_back(text.substr(start, hit - start));
    start = hit + delimiter.length();
    if (start == text.length()) parts.push_back(text.substr(start));
  }
  return StringList(std::move(parts));
}

zkstring TextFunctions::lowercase(const zkstring& text) {
  return newText(text.length(),
                 [&](char* out) { std::transform(text.data(), text.data() + text.length(), out, lowerOf); });
}

zkstring TextFunctions::uppercase(const zkstring& text) {
  return newText(text.length(),
                 [&](char* out) { std::transform(text.data(), text.data() + text.length(), out, upperOf); });
}

}  // namespace zarvik
