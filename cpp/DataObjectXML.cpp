#include "DataObjectXML.h"

#include <algorithm>
#include <array>

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

void DataObjectXML::appendIndent(zkstringbuffer& out, int level) {
  constexpr char tabs[] =
      "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
  constexpr unsigned int deepest = sizeof tabs - 1;
  static_assert(deepest == 52);
  out.append(tabs, std::min(static_cast<unsigned int>(level), deepest));
}

bool DataObjectXML::hasNonXMLCharacters(const zkstring& text) {
  return std::any_of(text.data(), text.data() + text.length(), [](char c) { return kindOf(c) != Kind::PLAIN; });
}

zkstring DataObjectXML::replaceXMLEntities(const zkstring& text, bool replaceQuotes) {
  if (!hasNonXMLCharacters(text)) return text;
  zkstringbuffer escaped;
  escaped.reserve(text.length() + 16);
  for (unsigned int i = 0; i < text.length(); ++i) appendEscaped(escaped, text[i], replaceQuotes);
  return escaped;
}

}  // namespace zarvik
