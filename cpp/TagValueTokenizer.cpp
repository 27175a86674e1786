#include "TagValueTokenizer.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>

#include "ByteScan.h"
#include "Conversion.h"

namespace zarvik {
namespace {

constexpr unsigned int longestQuickTag = 9;  ///< digits: any number of as many fits

/// Above 9 for what is no digit.
constexpr unsigned int digitOf(char c) { return static_cast<unsigned int>(static_cast<unsigned char>(c)) - '0'; }

/// The tag that stands at `p` as plain digits with a '=' behind, and their number; 0 for anything else. Looks no
/// further than the first byte that is no digit.
inline unsigned int readTag(const char* p, unsigned int& tag) {
  tag = digitOf(*p);
  if (tag > 9) return 0;
  for (unsigned int digits = 1; digits <= longestQuickTag; ++digits) {
    if (p[digits] == '=') return digits;
    const unsigned int digit = digitOf(p[digits]);
    if (digit > 9) return 0;
    tag = tag * 10 + digit;
  }
  return 0;
}

/// The first `byte`, or the end. Most fields are short, so a call would cost more than their first bytes.
inline const char* find(const char* p, const char* end, char byte) {
  const char* const nearEnd = p + std::min<std::ptrdiff_t>(end - p, 16);
  while (p != nearEnd && *p != byte) ++p;
  if (p == end || p != nearEnd) return p;
  const void* const found = std::memchr(p, static_cast<unsigned char>(byte), static_cast<std::size_t>(end - p));
  return found == nullptr ? end : static_cast<const char*>(found);
}

/// How many bytes the quick way may look at in a text of `length`. It takes the digits and the '=' as they come, so a
/// delimiter that is one of them leaves none.
unsigned int quickPart(unsigned int length, char delimiter) {
  const bool mayStandInTag = (delimiter >= '0' && delimiter <= '9') || delimiter == '=';
  return mayStandInTag || length < windowSize ? 0 : length - windowSize + 1;
}
}  // namespace

TagValueTokenizer::TagValueTokenizer(const zkstring& text, char delimiter)
    : quickEnd(quickPart(text.length(), delimiter)), text(text) {
  const std::uint64_t word = words::inEveryByte(static_cast<unsigned char>(delimiter));
  for (unsigned int i = 0; i < sizeof delimiters; i += sizeof word) std::memcpy(delimiters + i, &word, sizeof word);
}

bool TagValueTokenizer::next(TagValuePair& pair) {
  // A plain tag, and windows of text from its first byte to the delimiter; all else is read by the book.
  if (currentIndex >= quickEnd) [[unlikely]]
    return nextByTheBook(pair);
  const char* const begin = text.data() + currentIndex;
  unsigned int tag = 0;
  const unsigned int digits = readTag(begin, tag);
  if (digits == 0) [[unlikely]]
    return nextByTheBook(pair);

  unsigned int end = currentIndex;
  unsigned int places = scan::places(begin, delimiters);
  if (places == 0) [[unlikely]] {
    do {
      end += windowSize;
      if (end >= quickEnd) return nextByTheBook(pair);
      places = scan::places(text.data() + end, delimiters);
    } while (places == 0);
  }
  end += static_cast<unsigned int>(std::countr_zero(places));
  const unsigned int start = currentIndex + digits + 1;
  currentIndex = end + 1;
  pair.tag = static_cast<int>(tag);
  text.substr(start, end - start, pair.value);  // last, so that no register need be saved for the rare case in it
  return true;
}

bool TagValueTokenizer::nextByTheBook(TagValuePair& pair) {
  if (hasPushedPair) {
    pair = pushedPair;
    hasPushedPair = false;
    quickEnd = quickPart(text.length(), delimiters[0]);
    return true;
  }
  if (!hasMoreTokens()) return false;
  const unsigned int start = currentIndex;
  return split(start, nextToken(), pair), true;
}

bool TagValueTokenizer::nextDataTag(TagValuePair& pair, int dataLength) {
  if (hasPushedPair) fail("Length based tag not supported here");
  if (!hasMoreTokens()) return false;
  const unsigned int start = currentIndex;
  return split(start, nextToken(dataLength), pair), true;
}

unsigned int TagValueTokenizer::nextToken() {
  const char* const start = text.data() + currentIndex;
  const auto size = static_cast<unsigned int>(find(start, text.data() + text.length(), delimiters[0]) - start);
  currentIndex += size + 1;
  return size;
}

unsigned int TagValueTokenizer::nextToken(int dataLength) {
  const unsigned int start = currentIndex;
  currentIndex = std::min(text.find('=', start), text.length()) + 1;
  // A negative length points at what is read already: an error, even where a delimiter stands there.
  const __int64 behind = __int64{currentIndex} + dataLength;
  if (behind < 0 || behind >= text.length()) fail("Unexpected end of input while looking for data");
  const auto last = static_cast<unsigned int>(behind);
  if (dataLength < 0 || text[last] != delimiters[0]) {
    fail(
        "Blob type tag value pair has incorrect data length, character after the specified length is not the SOH "
        "character");
  }
  currentIndex = last + 1;
  return last - start;
}

void TagValueTokenizer::split(unsigned int start, unsigned int size, TagValuePair& pair) const {
  const char* const token = text.data() + start;
  const char* equal = token;
  while (equal != token + size && *equal != '=') ++equal;
  if (equal == token + size) {
    fail("'Name or value' can't be empty. Unable to parse tag=value of form " + text.substr(start, size));
  }
  unsigned int tag = 0;
  pair.tag = readTag(token, tag) != 0 ? static_cast<int>(tag) : v_atoi(token, equal);
  const auto tagSize = static_cast<unsigned int>(equal - token) + 1;
  text.substr(start + tagSize, size - tagSize, pair.value);
}

void TagValueTokenizer::assertEmpty() {
  if (!hasPushedPair && !hasMoreTokens()) return;
  TagValuePair pair;
  if (!next(pair)) fail(zkstring("Unexpected ") + formatName() + " data at the end.");
  pushBack(pair);
  fail("Unexpected tag " + intToString(pair.tag));
}

}  // namespace zarvik
