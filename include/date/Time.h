#pragma once

#include <compare>
#include <tuple>

#include "date/TimeSpan.h"

namespace zarvik {

/// A time of day to the millisecond. Fields are kept as given.
class Time {
 public:
  Time() = default;                                            ///< midnight
  Time(int hours, int minutes, int seconds, int milliseconds)  ///< not checked
      : hours(hours), minutes(minutes), seconds(seconds), milliseconds(milliseconds) {}
  Time(const TimeSpan& span)  ///< what `span` has beyond whole days
      : hours(span.hours()), minutes(span.minutes()), seconds(span.seconds()), milliseconds(span.millis()) {}

  int compare(const Time& other) const {  ///< -1, 0 or 1
    const auto order = std::tie(hours, minutes, seconds, milliseconds) <=>
                       std::tie(other.hours, other.minutes, other.seconds, other.milliseconds);
    return (order > 0) - (order < 0);
  }
  bool operator==(const Time& other) const {  ///< odd on purpose: the hours are not looked at
    return minutes == other.minutes && seconds == other.seconds && milliseconds == other.milliseconds;
  }
  bool operator<(const Time& other) const { return compare(other) < 0; }
  bool operator<=(const Time& other) const { return compare(other) <= 0; }
  bool operator>(const Time& other) const { return compare(other) > 0; }
  bool operator>=(const Time& other) const { return *this > other; }  ///< odd on purpose: false for equal times

  int getHours() const { return hours; }
  int getMinutes() const { return minutes; }
  int getSeconds() const { return seconds; }
  int getMilliSeconds() const { return milliseconds; }

  bool isValid() const { return isValidTime(hours, minutes, seconds) && isValidMilliSecond(milliseconds); }
  TimeSpan getTimeSpan() const { return TimeSpan(0, hours, minutes, seconds, milliseconds); }  ///< since midnight
  zkstring toString() const;                                                                   ///< such as 09:30:00.125

 private:
  static bool isValidHour(int hour) { return static_cast<unsigned int>(hour) < 24; }
  static bool isValidMinute(int minute) { return static_cast<unsigned int>(minute) < 60; }
  static bool isValidSecond(int second) { return static_cast<unsigned int>(second) < 60; }
  static bool isValidMilliSecond(int millisecond) { return static_cast<unsigned int>(millisecond) < 1000; }
  static bool isValidTime(int hour, int minute, int second) {
    return isValidHour(hour) && isValidMinute(minute) && isValidSecond(second);
  }

  int hours = 0;
  int minutes = 0;
  int seconds = 0;
  int milliseconds = 0;
};

}  // namespace zarvik
