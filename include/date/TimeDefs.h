#pragma once

#include "zkstring.h"

namespace zarvik {

/// The constants of the calendar and of the clock. Julian days are counted from 1 January -4712, which is day 0.
class TimeDefs {
 public:
  TimeDefs() = delete;

  static constexpr int SECONDS_IN_MINUTE = 60;
  static constexpr int SECONDS_IN_HOUR = 3600;
  static constexpr int SECONDS_IN_DAY = 86400;
  static constexpr int SECONDS_IN_WEEK = 604800;
  static constexpr int SECONDS_IN_YEAR = 31536000;
  static constexpr int SECONDS_IN_LEAP_YEAR = 31622400;
  static constexpr int MINUTES_IN_HOUR = 60;
  static constexpr int HOURS_IN_DAY = 24;
  static constexpr int DAYS_IN_WEEK = 7;
  static constexpr int DAYS_IN_YEAR = 365;
  static constexpr int DAYS_IN_LEAP_YEAR = 366;
  static constexpr int MONTHS_IN_YEAR = 12;
  static constexpr int LAST_JULIAN_CALENDAR_DAY = 2299160;  ///< 4 October 1582; the next day is 15 October
  static constexpr int LAST_JULIAN_DAY = 13689325;
  static constexpr int FIRST_JULIAN_DAY = 0;
  static constexpr int MINIMUM_YEAR = -4712;
  static constexpr int MAXIMUM_YEAR = 32767;
  static constexpr int MAX_FORMAT_STR_SIZE = 64;

  static const zkstringliteral DEFAULT_TIME_FORMAT;
  static const zkstringliteral DEFAULT_DATE_FORMAT;
  static const zkstringliteral DEFAULT_DATE_TIME_FORMAT;  ///< odd on purpose: the date format
  static const zkstringliteral DEFAULT_BC_STRING;
};

}  // namespace zarvik
