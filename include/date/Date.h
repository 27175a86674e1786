#pragma once

#include <compare>
#include <tuple>

#include "date/TimeDefs.h"
#include "date/TimeSpan.h"

namespace zarvik {

/// A calendar day: Julian up to 4 October 1582, Gregorian from 15 October 1582, in the astronomers' count of years (the
/// year before 1 is 0). Fields are kept as given; only arithmetic turns them into a count of days.
class Date {
 public:
  Date() = default;                                                           ///< 1 January of the year 0
  Date(int year, int month, int day) : year(year), month(month), day(day) {}  ///< not checked
  Date(const TimeSpan& span) { unpack(span, year, month, day); }              ///< counted from day 0

  int compare(const Date& other) const {  ///< -1, 0 or 1
    const auto order = std::tie(year, month, day) <=> std::tie(other.year, other.month, other.day);
    return (order > 0) - (order < 0);
  }
  bool operator==(const Date& other) const { return compare(other) == 0; }
  bool operator<(const Date& other) const { return compare(other) < 0; }
  bool operator<=(const Date& other) const { return compare(other) <= 0; }
  bool operator>(const Date& other) const { return compare(other) > 0; }
  bool operator>=(const Date& other) const { return *this > other; }  ///< odd on purpose: false for equal dates

  int getYear() const { return year; }
  int getMonth() const { return month; }  ///< from 1
  int getDate() const { return day; }     ///< the day of the month, from 1
  int dayOfWeek() const;                  ///< 1 for Sunday to 7 for Saturday

  /// Years from -4712 to 32767. Odd on purpose: in October 1582 the days 1 to 21 are valid, the later ones are not.
  bool isValid() const { return isValidDate(year, month, day); }
  TimeSpan getTimeSpan() const { return pack(year, month, day); }
  zkstring toString() const;  ///< such as 2024-02-29

  static Date now();  ///< today by the local clock

  /// The days from 1 January -4712 to the given day, as a span; the dropped days of October 1582 count as the 15th.
  /// A day before day 0 gives its distance from it. Integer arithmetic only, no allocation.
  static TimeSpan pack(int year, int month, int day);
  static void unpack(const TimeSpan& span, int& year, int& month, int& day);  ///< from the whole days of `span`

 private:
  static int daysInMonth(int year, int month);
  static bool isDayInMonth(int year, int month, int day) {
    return day >= 1 && ((day < 28 && year != 1582) || day <= daysInMonth(year, month));  // the first is quick
  }
  static bool isLeapYear(int year);
  static bool isValidDate(int year, int month, int day) {
    return isValidYear(year) && isValidMonth(month) && isDayInMonth(year, month, day);
  }
  static bool isValidMonth(int month) { return month >= 1 && month <= TimeDefs::MONTHS_IN_YEAR; }
  static bool isValidYear(int year) { return year >= TimeDefs::MINIMUM_YEAR && year <= TimeDefs::MAXIMUM_YEAR; }

  int year = 0;
  int month = 1;
  int day = 1;
};

}  // namespace zarvik
