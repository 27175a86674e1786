#include "DataObjectXML.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "Conversion.h"

namespace zarvik {
namespace {

enum class Kind : unsigned char { PLAIN, NAMED, QUOTE, NUMBERED };

/// How each byte is written.
constexpr std::array<Kind, 256> kinds = [] {
  std::array<Kind, 256> table{};
  for (unsigned int c = 0; c < table.size(); ++c) table[c] = c < 32 || c > 127 ? Kind::NUMBERED : Kind::PLAIN;
  for (const char c : {'\t', '\n', '\r'}) table[static_cast<unsigned char>(c)] = Kind::PLAIN;
  for (const char c : {'<', '>', '&'}) table[static_cast<unsigned char>(c)] = Kind::NAMED;
  for (const char c : {'\'', '"'}) table[static_cast<unsigned char>(c)] = Kind::QUOTE;
  return table;
}();

Kind kindOf(char c) { return kinds[static_cast<unsigned char>(c)]; }

const char* nameOf(char c) {
  switch (c) {
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '&':
      return "&amp;";
    case '\'':
      return "&apos;";
    default:
      return "&quot;";
  }
}

bool allPlain(const char* begin, const char* end) {
  return std::all_of(begin, end, [](char c) { return kindOf(c) == Kind::PLAIN; });
}

std::uint64_t wordAt(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  return word;
}

/// Whether the eight bytes are printing characters of ASCII that stand for themselves. True of most texts; what fails
/// here is looked at byte by byte. The top bit of a byte is set in a difference that went below 0, and in bytes
/// above ASCII.
bool isPlain(std::uint64_t word) {
  constexpr std::uint64_t each = 0x0101010101010101;
  const auto anyZero = [](std::uint64_t bytes) { return (bytes - each) & ~bytes; };
  const std::uint64_t controls = word - each * ' ';
  const std::uint64_t brackets = anyZero((word | each * 2) ^ each * '>');  // '<' and '>'
  const std::uint64_t ampersand = anyZero((word | each) ^ each * '\'');    // '&' and the apostrophe
  const std::uint64_t quotes = anyZero(word ^ each * '"');
  return ((word | controls | brackets | ampersand | quotes) & each * 0x80) == 0;
}

void appendEscaped(zkstringbuffer& out, char c, bool replaceQuotes) {
  const Kind kind = kindOf(c);
  if (kind == Kind::NUMBERED) {
    char digits[intTextSize];
    intToString(static_cast<signed char>(c), digits);
    out.append("&#").append(digits).append(';');
  } else if (kind == Kind::NAMED || (kind == Kind::QUOTE && replaceQuotes)) {
    out.append(nameOf(c));
  } else {
    out.append(c);
  }
}
}  // namespace

void DataObjectXML::appendTag(zkstringbuffer& out, int level, const char* begin, const zkstring& tag) {
  appendIndent(out, level);
  out.append(begin).append(tag).append(">\n", 2);
}

bool DataObjectXML::hasNonXMLCharacters(const zkstring& text) {
  const char* at = text.data();
  const char* const end = at + text.length();
  if (text.length() < 8) return !allPlain(at, end);
  const char* const lastWord = end - 8;  // may overlap the one before
  for (; at < lastWord; at += 8) {
    if (!isPlain(wordAt(at)) && !allPlain(at, at + 8)) return true;
  }
  return !isPlain(wordAt(lastWord)) && !allPlain(lastWord, end);
}

zkstring DataObjectXML::escaped(const zkstring& text, bool replaceQuotes) {
  zkstringbuffer out;
  out.reserve(text.length() + 16);
  for (unsigned int i = 0; i < text.length(); ++i) appendEscaped(out, text[i], replaceQuotes);
  return out;
}

}  // namespace zarvik
