#pragma once

#include "Conversion.h"
#include "Parsing.h"

namespace zarvik {

/// The text forms of dates, times and booleans in tag=value formats. Dates go through Parsing, with its errors; what
/// formats gives back `out`. Without state. A format adds the reader of booleans, for its errors are its own.
class TagValueType {
 public:
  /// "yyyyMMdd-HH:mm:ss", with ".SSS" behind where there are milliseconds.
  static DateTime parseUTCTimestamp(const zkstring& text);
  static zkstring& formatUTCTimestamp(const DateTime& value, zkstring& out);

  /// "HH:mm:ss", with ".SSS" behind where there are milliseconds.
  static DateTime parseUTCTimeOnly(const zkstring& text);
  static zkstring& formatUTCTimeOnly(const DateTime& value, zkstring& out);
  static DateTime parseLocalMktTimeOnly(const zkstring& text) { return parseUTCTimeOnly(text); }
  static zkstring& formatLocalMktTimeOnly(const DateTime& value, zkstring& out) {
    return formatUTCTimeOnly(value, out);
  }

  /// "yyyyMMdd"
  static DateTime parseUTCDate(const zkstring& text);
  static zkstring& formatUTCDate(const DateTime& value, zkstring& out);
  static DateTime parseLocalMktDate(const zkstring& text) { return parseUTCDate(text); }
  static zkstring& formatLocalMktDate(const DateTime& value, zkstring& out) { return formatUTCDate(value, out); }

  /// "yyyyMMdd-HH:mm:ss": milliseconds are an error in a text, and left out of a value.
  static DateTime parseLocalMktTimestamp(const zkstring& text);
  static zkstring& formatLocalMktTimestamp(const DateTime& value, zkstring& out);

  /// "yyyyMM"
  static DateTime parsemonth_year(const zkstring& text);
  static zkstring& formatmonth_year(const DateTime& value, zkstring& out);

  /// Milliseconds, as those of DateTime::toTimestamp.
  static DateTime parseUTCTimestamp_int64(const zkstring& text) {
    return parseUTCTimestamp_int64(Parsing::parseLong(text));
  }
  static DateTime parseUTCTimestamp_int64(__int64 milliseconds) { return DateTime::fromTimestamp(milliseconds); }
  static zkstring& formatUTCTimestamp_int64(const DateTime& value, zkstring& out);

  static zkstring& formatBoolean(bool value, zkstring& out);  ///< "Y" or "N"
  static zkstring& formatBoolean_4_1(bool value, zkstring& out) { return formatBoolean(value, out); }
};

}  // namespace zarvik
