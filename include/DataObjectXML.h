#pragma once

#include "zkstringbuffer.h"

namespace zarvik {

/// What all XML texts of records share: the escapes of character data, and the indentation.
class DataObjectXML {
 public:
  /// `text` as character data: "<", ">", "&" and the characters below 32 but tab, line feed and carriage return are
  /// escaped; a text without any of these, and without quotes, is returned as it is, sharing its block.
  /// Odd on purpose: bytes from 0x80 count as negative, so that 0xE9 becomes "&#-23;".
  static zkstring fixXMLCharData(const zkstring& text) { return replaceXMLEntities(text, false); }

  /// One tab a level, 52 at most; a negative level counts as 52.
  static void appendIndent(zkstringbuffer& out, int level);

 private:
  static bool hasNonXMLCharacters(const zkstring& text);
  static zkstring replaceXMLEntities(const zkstring& text, bool replaceQuotes);
};

}  // namespace zarvik
