#pragma once

#include "VList.h"
#include "formula/ConcatFunctions.h"
#include "zkstring.h"
#include "zkstringbuffer.h"

namespace zarvik {

/// The string functions of formulas.
///
/// All are static, keep no state, and take plain values: a null field never gets here. Positions are bytes from 0,
/// counts are bytes, "not found" is -1. No function fails but `charAt`: elsewhere a position or count outside the text
/// is clamped or leaves the text unchanged, as told. Arguments are never changed (`append` apart); results may share
/// the block of an argument. Upper and lower case are the C library's, in the process's locale.
class TextFunctions {
 public:
  static char charAt(const zkstring& text, int index);  ///< throws TransformRuntimeException outside the text
  static int length(const zkstring& text) { return static_cast<int>(text.length()); }

  // Parts of a text. Views of it, so without allocation.
  static zkstring left(const zkstring& text, int n);                       ///< n is clamped to the text
  static zkstring right(const zkstring& text, int n);                      ///< n is clamped to the text
  static zkstring mid(const zkstring& text, int start, int n);             ///< a start below 0 is 0; clipped at the end
  static zkstring leftStr(const zkstring& text, const zkstring& pattern);  ///< up to the pattern; all without one
  static zkstring rightStr(const zkstring& text, const zkstring& pattern);  ///< behind the pattern; all without one
  /// Without bytes below 33, taken as signed 8-bit values, at the ends: control characters, blanks, and all bytes from
  /// 0x80 up.
  static zkstring trim(const zkstring& text);
  static zkstring trimLeft(const zkstring& text);
  static zkstring trimRight(const zkstring& text);

  // New texts. One that cannot be addressed throws std::bad_alloc, as failing memory does.
  static zkstring lower(const zkstring& text) { return lowercase(text); }
  static zkstring upper(const zkstring& text) { return uppercase(text); }
  static zkstring lpad(const zkstring& text, char c, int n);  ///< to n bytes, by c in front or by cutting the end
  static zkstring rpad(const zkstring& text, char c, int n);  ///< to n bytes, by c behind or by cutting the end
  static zkstring repeat(const zkstring& text, int n);        ///< n times
  static zkstring reverse(const zkstring& text);

  // Edited copies.
  static zkstring deleteCharAt(const zkstring& text, int index);      ///< unchanged for an index outside the text
  static zkstring deleteStr(const zkstring& text, int start, int n);  ///< unchanged for a start outside, or n below 0
  static zkstring insert(const zkstring& text, int index, const zkstring& part);  ///< index is clamped to the text
  static zkstring insert(const zkstring& text, int index, char value);
  static zkstring insert(const zkstring& text, int index, int value);
  static zkstring insert(const zkstring& text, int index, float value);
  static zkstring insert(const zkstring& text, int index, double value);
  /// Every `from`, found left to right in the original text; an empty `from` is never found.
  static zkstring replace(const zkstring& text, const zkstring& from, const zkstring& to);
  static zkstring replace(const zkstring& text, const zkstring& from, char to);
  static zkstring replace(const zkstring& text, char from, const zkstring& to);
  static zkstring replace(const zkstring& text, char from, char to);
  /// The n bytes from `start`; unchanged for a start outside the text, or n below 0.
  static zkstring replace(const zkstring& text, int start, int n, const zkstring& part);
  static zkstring replace(const zkstring& text, int index, char c);  ///< unchanged for an index outside the text

  // Positions. A search `from` a position below 0 starts at 0, a search backward from there finds nothing.
  static int findFirst(const zkstring& text, const zkstring& pattern) { return findFirst(text, pattern, 0); }
  static int findFirst(const zkstring& text, const zkstring& pattern, int from);
  static int findFirst(const zkstring& text, char c) { return findFirst(text, c, 0); }
  static int findFirst(const zkstring& text, char c, int from);
  static int findLast(const zkstring& text, const zkstring& pattern) { return findLast(text, pattern, length(text)); }
  static int findLast(const zkstring& text, const zkstring& pattern, int from);  ///< starts at or before `from`
  static int findLast(const zkstring& text, char c) { return findLast(text, c, length(text)); }
  static int findLast(const zkstring& text, char c, int from);

  // Comparisons. Any text starts and ends with an empty pattern.
  static bool startsWith(const zkstring& text, const zkstring& pattern) { return startsWith(text, pattern, 0); }
  static bool startsWith(const zkstring& text, const zkstring& pattern, int from);  ///< a `from` below 0 is 0
  static bool startsWithIgnoreCase(const zkstring& text, const zkstring& pattern);
  static bool startsWithIgnoreCase(const zkstring& text, const zkstring& pattern, int from);
  static bool endsWith(const zkstring& text, const zkstring& pattern);
  static bool endsWithIgnoreCase(const zkstring& text, const zkstring& pattern);
  static bool equal(const zkstring& a, const zkstring& b) { return a == b; }
  static bool equal(const zkstring& a, const char* b) { return a == b; }
  static bool notEqual(const zkstring& a, const zkstring& b) { return a != b; }
  static bool notEqual(const zkstring& a, const char* b) { return a != b; }
  static bool equalIgnoreCase(const zkstring& a, const zkstring& b) { return compareIgnoreCase(a, b) == 0; }
  static bool notEqualIgnoreCase(const zkstring& a, const zkstring& b) { return compareIgnoreCase(a, b) != 0; }
  static int compare(const zkstring& a, const zkstring& b) { return a.compare(b); }
  static int compareIgnoreCase(const zkstring& a, const zkstring& b);  ///< as the lower-case forms compare
  static bool less(const zkstring& a, const zkstring& b) { return compare(a, b) < 0; }
  static bool lessEqual(const zkstring& a, const zkstring& b) { return compare(a, b) <= 0; }
  static bool greater(const zkstring& a, const zkstring& b) { return compare(a, b) > 0; }
  static bool greaterEqual(const zkstring& a, const zkstring& b) { return compare(a, b) >= 0; }

  // Kinds of bytes, in ASCII whatever the locale. An empty text is of any kind.
  static bool isAlpha(const zkstring& text);
  static bool isAlpha(char c);
  static bool isAlphaUpper(const zkstring& text);
  static bool isAlphaUpper(char c);
  static bool isAlphaNum(const zkstring& text);
  static bool isAlphaNum(char c);
  static bool isAlphaUpperNum(const zkstring& text);
  static bool isAlphaUpperNum(char c);
  static bool isNum(const zkstring& text);
  static bool isNum(char c);

  /// The parts of `text` between the delimiters, empty ones included, as views that share the text's block. An empty
  /// text has no part, an empty delimiter gives the text as the one part. At most `limit` parts (none for a limit below
  /// 1): what is left of the text is dropped. But the empty part behind a delimiter at the end always stands.
  static StringList split(const zkstring& delimiter, const zkstring& text, int limit);
  static StringList split(const zkstring& delimiter, const zkstring& text) { return split(delimiter, text, 1000000); }

  static zkstringbuffer createStringBuffer() { return {}; }
  static zkstringbuffer createStringBuffer(int /*size*/) { return {}; }
  /// Appends the text of `value`, of any type that ConcatFunctionsHelper takes, and gives the buffer back.
  template <class T>
  static zkstringbuffer& append(zkstringbuffer& buffer, const T& value) {
    ConcatFunctionsHelper::appendToString(buffer, value);
    return buffer;
  }

 private:
  static zkstring lowercase(const zkstring& text);
  static zkstring uppercase(const zkstring& text);
};

}  // namespace zarvik
