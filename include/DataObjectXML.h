#pragma once

#include <algorithm>

#include "zkstringbuffer.h"

namespace zarvik {

/// What all XML texts of records share: the escapes of character data, and the indentation.
class DataObjectXML {
 public:
  /// `text` as character data: "<", ">", "&" and the characters below 32 but tab, line feed and carriage return are
  /// escaped; a text without any of these, and without quotes, is returned as it is, sharing its block.
  /// Odd on purpose: bytes from 0x80 count as negative, so that 0xE9 becomes "&#-23;".
  static zkstring fixXMLCharData(const zkstring& text) { return replaceXMLEntities(text, false); }

  static constexpr unsigned int deepest = 52;

  /// The tabs that a line at `level` begins with: one a level, and no more than `deepest`; odd on purpose: as many for
  /// a negative level.
  static unsigned int depth(int level) { return std::min(static_cast<unsigned int>(level), deepest); }
  static void appendIndent(zkstringbuffer& out, int level) { out.append(static_cast<int>(depth(level)), '\t'); }

  /// A line with nothing but a tag; `begin` is "<" or "</".
  static void appendTag(zkstringbuffer& out, int level, const char* begin, const zkstring& tag);

 private:
  static bool hasNonXMLCharacters(const zkstring& text);
  static zkstring replaceXMLEntities(const zkstring& text, bool replaceQuotes) {
    return hasNonXMLCharacters(text) ? escaped(text, replaceQuotes) : text;
  }
  static zkstring escaped(const zkstring& text, bool replaceQuotes);
};

}  // namespace zarvik
