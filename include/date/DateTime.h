#pragma once

#include <string_view>

#include "date/Date.h"
#include "date/Time.h"

namespace zarvik {

/// A calendar day and a time of day, in local time where it matters; the value of all date fields.
///
/// Patterns are made of runs of the letters y M d H m s S, such as "yyyy-MM-dd HH:mm:ss.SSS"; every other character
/// stands for itself (DateStr.h has the table). Constructors from fields and the reader throw
/// TransformRuntimeException "Illegal date ..." or "Illegal time ..." for what is not in the calendar.
class DateTime {
 public:
  DateTime() = default;  ///< 1 January of the year 0, midnight
  DateTime(const Date& date, const Time& time) : date(date), time(time) { validate(); }
  DateTime(int year, int month, int day, int hours, int minutes, int seconds, int milliseconds)
      : DateTime(Date(year, month, day), Time(hours, minutes, seconds, milliseconds)) {}
  DateTime(const TimeSpan& span) : date(span), time(span) {}  ///< counted from day 0; not checked

  int compare(const DateTime& other) const {  ///< -1, 0 or 1
    const int order = date.compare(other.date);
    return order != 0 ? order : time.compare(other.time);
  }
  bool operator==(const DateTime& other) const { return compare(other) == 0; }
  bool operator!=(const DateTime& other) const { return compare(other) != 0; }
  bool operator<(const DateTime& other) const { return compare(other) < 0; }
  bool operator<=(const DateTime& other) const { return compare(other) <= 0; }
  bool operator>(const DateTime& other) const { return compare(other) > 0; }
  bool operator>=(const DateTime& other) const { return *this > other; }  ///< odd on purpose: false for equal values

  DateTime operator+(const TimeSpan& span) const { return getTimeSpan() + span; }
  DateTime operator-(const TimeSpan& span) const { return getTimeSpan() - span; }  ///< by the rules of TimeSpan
  TimeSpan operator-(const DateTime& other) const { return getTimeSpan() - other.getTimeSpan(); }  ///< a magnitude

  int getYear() const { return date.getYear(); }
  int getMonth() const { return date.getMonth(); }
  int getDate() const { return date.getDate(); }  ///< the day of the month
  int getHours() const { return time.getHours(); }
  int getMinutes() const { return time.getMinutes(); }
  int getSeconds() const { return time.getSeconds(); }
  int getMilliSeconds() const { return time.getMilliSeconds(); }
  const Date& getDatePortion() const { return date; }
  const Time& getTimePortion() const { return time; }
  TimeSpan getTimeSpan() const { return date.getTimeSpan() + time.getTimeSpan(); }  ///< since day 0

  bool isValid() const { return date.isValid() && time.isValid(); }
  void validate() const {
    if (!isValid()) throwInvalid();
  }

  /// Prints by `pattern` and terminates; the result is the length without the terminator. `size` is no bound: `out` has
  /// room for the text, whose runs are as wide as DateStr.h tells (three bytes for a lone S).
  unsigned int asString(char* out, unsigned int /*size*/, const char* pattern) const {
    return print(out, std::string_view(pattern));  // here, so that constant patterns are measured by the compiler
  }
  zkstring toString(const zkstring& pattern) const;  ///< allocates the result alone

  /// Reads `text` by `pattern`; fields that the pattern lacks are those of 1 January 1970, 00:00. Nothing behind the
  /// text's end is looked at. Throws TransformRuntimeException, with the texts that DateStr.h tells of as well.
  static DateTime fromString(const char* text, const char* pattern) { return read(text, pattern); }
  static DateTime fromString(const char* text, unsigned int length, const char* pattern) {
    return read({text, length}, pattern);
  }
  static DateTime fromString(const zkstring& text, const zkstring& pattern) {
    return read({text.data(), text.length()}, {pattern.data(), pattern.length()});
  }

  /// Milliseconds since 1970 in UTC, read as local time by the offset of `localOffset`. Odd on purpose: a moment
  /// before 1970 gives its distance too.
  __int64 toTimestamp() const;
  static DateTime fromTimestamp(__int64 milliseconds);  ///< not checked

  static DateTime now();    ///< local time with milliseconds
  static DateTime today();  ///< local date, midnight

  /// Minutes that local time is ahead of UTC, negative in the west. Taken on first use, for the life of the process.
  static int localOffset();

 private:
  unsigned int print(char* out, std::string_view pattern) const;
  static DateTime read(std::string_view text, std::string_view pattern);
  [[noreturn]] void throwInvalid() const;

  Date date;
  Time time;
};

/// A DateTime that knows its time zone, as an offset in minutes; the fields are not changed by it.
class ISODateTime : public DateTime {
 public:
  ISODateTime() = default;
  ISODateTime(const DateTime& value) : ISODateTime(value, 0) {}
  ISODateTime(const DateTime& value, int offset) : DateTime(value), timeZoneOffset(offset) {}

  int getTimeZoneOffset() const { return timeZoneOffset; }

 private:
  int timeZoneOffset = 0;
};

}  // namespace zarvik
