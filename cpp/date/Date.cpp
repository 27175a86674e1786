#include "date/Date.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>

namespace zarvik {
namespace {

/// `a` divided by the positive `b`, rounded towards minus infinity.
constexpr __int64 floorDivide(__int64 a, __int64 b) { return a >= 0 ? a / b : -((b - 1 - a) / b); }

bool droppedByTheReform(int year, int month, int day) { return year == 1582 && month == 10 && day >= 5 && day <= 14; }

/// So many days; the low end of the range for counts that no `int` holds, which only years far outside the calendar
/// have.
TimeSpan spanOf(__int64 days) {
  using Limits = std::numeric_limits<int>;
  if (days < Limits::min() || days > Limits::max()) days = Limits::min();
  return TimeSpan(std::abs(days) * TimeDefs::SECONDS_IN_DAY);
}
}  // namespace

// The astronomers' count of days, on years that begin with March and months counted from March -4800 in Julian days.
// It is defined by formulas in floating point; here they stand in integers, each quotient scaled by its divisor's
// decimals, which gives the same days (the tests compare the two).
TimeSpan Date::pack(int year, int month, int day) {
  if (droppedByTheReform(year, month, day)) day = 15;
  const __int64 months = (static_cast<__int64>(year) + 4800) * 12 + month - 3;
  const __int64 monthOfYear = months - floorDivide(months, 12) * 12;
  __int64 days = floorDivide(2 * monthOfYear + 7 + 365 * months, 12) + day + floorDivide(months, 48) - 32083;
  if (days > TimeDefs::LAST_JULIAN_CALENDAR_DAY) days += floorDivide(months, 4800) - floorDivide(months, 1200) + 38;
  return spanOf(days);
}

void Date::unpack(const TimeSpan& span, int& year, int& month, int& day) {
  __int64 x = static_cast<__int64>(span.days()) + 32082;  // the half day of the formulas changes no quotient
  if (span.days() > TimeDefs::LAST_JULIAN_CALENDAR_DAY) {
    const __int64 c = x + x / 36525 - x / 146100 - 37;
    x += c / 36525 - c / 146100 - 38;
  }
  x += 123;
  const __int64 marchYear = floorDivide(20 * x - 2444, 7305);                    // (x - 122.2) / 365.25
  const int dayOfYear = static_cast<int>(x - floorDivide(1461 * marchYear, 4));  // from 123, 365.25 days a year
  const int marchMonth = dayOfYear * 10000 / 306001;                             // 30.6001 days a month
  month = marchMonth > 13 ? marchMonth - 13 : marchMonth - 1;
  day = dayOfYear - marchMonth * 306001 / 10000;
  year = static_cast<int>(marchYear) - 4800 + (marchMonth > 13 ? 1 : 0);
}

int Date::dayOfWeek() const { return static_cast<int>((getTimeSpan().elapsedseconds() / 86400 + 1) % 7) + 1; }

zkstring Date::toString() const {
  char text[40];
  const int length = std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
  return zkstring(text, static_cast<unsigned int>(length));
}

Date Date::now() {
  const std::time_t instant = std::time(nullptr);
  std::tm fields{};
  localtime_r(&instant, &fields);
  return Date(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday);
}

bool Date::isLeapYear(int year) { return year % 4 == 0 && (year <= 1582 || year % 100 != 0 || year % 400 == 0); }

int Date::daysInMonth(int year, int month) {
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month == 2 && isLeapYear(year)) return 29;
  if (month == 10 && year == 1582) return 21;
  return days[month - 1];
}

}  // namespace zarvik
