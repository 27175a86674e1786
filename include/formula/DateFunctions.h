#pragma once

#include "date/DateTime.h"

namespace zarvik {

/// Dates and times in formulas, on plain values. Where fields are put together the result is checked, and the error is
/// that of DateTime: TransformRuntimeException "Illegal date ..." or "Illegal time ...".
class DateFunctions {
 public:
  static DateTime now() { return DateTime::now(); }
  static DateTime today() { return DateTime::today(); }
  static DateTime newDate(int year, int month, int day) { return DateTime(year, month, day, 0, 0, 0, 0); }
  static DateTime newDateTime(int year, int month, int day, int hours, int minutes, int seconds, int milliseconds) {
    return DateTime(year, month, day, hours, minutes, seconds, milliseconds);
  }
  static DateTime newTime(int hours, int minutes, int seconds, int milliseconds) {  ///< on 1 January of the year 0
    return DateTime(Date(), Time(hours, minutes, seconds, milliseconds));
  }
  static DateTime datePart(const DateTime& value) { return DateTime(value.getDatePortion(), Time()); }
  static DateTime timePart(const DateTime& value) { return DateTime(Date(), value.getTimePortion()); }

  // A negative count goes back; the result is not checked.
  static DateTime addDays(const DateTime& value, int days);
  static DateTime addHours(const DateTime& value, int hours);
  static DateTime addMinutes(const DateTime& value, int minutes);
  static DateTime addSeconds(const DateTime& value, int seconds);

  /// Keeps the day, which the target month must have. Odd on purpose: going back beyond the December before, the month
  /// is beyond 12 and fails; a sum that is a multiple of 12 above 12 gives December of the year that it started from.
  static DateTime addMonths(const DateTime& value, int months);
  static DateTime addYears(const DateTime& value, int years);  ///< from 29 February only to leap years
  static DateTime nextDay(const DateTime& value) { return addDays(value, 1); }
  static DateTime previousDay(const DateTime& value) { return addDays(value, -1); }

  static int year(const DateTime& value) { return value.getYear(); }
  static int month(const DateTime& value) { return value.getMonth(); }
  static int day(const DateTime& value) { return value.getDate(); }
  static int hour(const DateTime& value) { return value.getHours(); }
  static int minute(const DateTime& value) { return value.getMinutes(); }
  static int second(const DateTime& value) { return value.getSeconds(); }
  static int millis(const DateTime& value) { return value.getMilliSeconds(); }
  static int weekDay(const DateTime& value) { return value.getDatePortion().dayOfWeek(); }  ///< 1 for Sunday
  static zkstring weekDayName(const DateTime& value);                                       ///< "SUNDAY"

  // All seven fields count, and equal values are also less-or-equal and greater-or-equal.
  static int compare(const DateTime& a, const DateTime& b) { return a.compare(b); }  ///< -1, 0 or 1
  static bool after(const DateTime& a, const DateTime& b) { return compare(a, b) > 0; }
  static bool before(const DateTime& a, const DateTime& b) { return compare(a, b) < 0; }
  static bool equal(const DateTime& a, const DateTime& b) { return compare(a, b) == 0; }
  static bool notEqual(const DateTime& a, const DateTime& b) { return compare(a, b) != 0; }
  static bool greater(const DateTime& a, const DateTime& b) { return compare(a, b) > 0; }
  static bool greaterEqual(const DateTime& a, const DateTime& b) { return compare(a, b) >= 0; }
  static bool less(const DateTime& a, const DateTime& b) { return compare(a, b) < 0; }
  static bool lessEqual(const DateTime& a, const DateTime& b) { return compare(a, b) <= 0; }

  // Whole units from b to a: positive when a is later. Months and years look at the dates alone.
  static int daysBetween(const DateTime& a, const DateTime& b);
  static int monthsBetween(const DateTime& a, const DateTime& b);
  static int yearsBetween(const DateTime& a, const DateTime& b);

  static __int64 toTimestamp(const DateTime& value) { return value.toTimestamp(); }
  static DateTime fromTimestamp(__int64 milliseconds) { return DateTime::fromTimestamp(milliseconds); }
  static int getTimeZoneOffset() { return DateTime::localOffset(); }  ///< minutes that local time is ahead of UTC

  /// The local time `value`, put in order by the C library, which decides about summer time; and the same moment in
  /// UTC. Both throw TransformException "Unsupported date range" for what the C library cannot count, and for the
  /// last second of 1969 in UTC.
  static DateTime toLocalTime(const DateTime& value);
  static DateTime toUTCTime(const DateTime& value);

  static ISODateTime toISODate(const DateTime& value) { return ISODateTime(value); }  ///< with offset 0
  static ISODateTime toISODate(const DateTime& value, int offset) { return ISODateTime(value, offset); }
  static DateTime toDate(const ISODateTime& value) { return value; }  ///< the fields as they stand
};

}  // namespace zarvik
