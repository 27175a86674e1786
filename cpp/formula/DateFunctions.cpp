#include "formula/DateFunctions.h"

#include <ctime>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/formula/DateFunctions";

DateTime moved(const DateTime& value, const TimeSpan& span, int direction) {
  return direction < 0 ? value - span : value + span;
}

/// The same time of day on another date.
DateTime onDate(const DateTime& value, __int64 year, __int64 month) {
  return DateTime(Date(static_cast<int>(year), static_cast<int>(month), value.getDate()), value.getTimePortion());
}

/// Whether `a` lies earlier in its year than `b` in its own.
bool earlierInYear(const DateTime& a, const DateTime& b) {
  return a.getMonth() != b.getMonth() ? a.getMonth() < b.getMonth() : a.getDate() < b.getDate();
}

std::time_t instantOf(const DateTime& value) {
  std::tm fields{};
  fields.tm_year = value.getYear() - 1900;
  fields.tm_mon = value.getMonth() - 1;
  fields.tm_mday = value.getDate();
  fields.tm_hour = value.getHours();
  fields.tm_min = value.getMinutes();
  fields.tm_sec = value.getSeconds();
  fields.tm_isdst = -1;
  return std::mktime(&fields);
}

/// `value`, a local time, with its fields made anew by `split`, one of the C library's two.
DateTime splitBy(std::tm* (*split)(const std::time_t*, std::tm*), const DateTime& value) {
  const std::time_t instant = instantOf(value);
  std::tm fields{};
  if (instant == -1 || split(&instant, &fields) == nullptr) {
    throwFrom(here, TransformException("Unsupported date range"));
  }
  return DateTime(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min,
                  fields.tm_sec, value.getMilliSeconds());
}
}  // namespace

DateTime DateFunctions::addDays(const DateTime& value, int days) {
  return moved(value, TimeSpan(days, 0, 0, 0, 0), days);
}

DateTime DateFunctions::addHours(const DateTime& value, int hours) {
  return moved(value, TimeSpan(0, hours, 0, 0, 0), hours);
}

DateTime DateFunctions::addMinutes(const DateTime& value, int minutes) {
  return moved(value, TimeSpan(0, 0, minutes, 0, 0), minutes);
}

DateTime DateFunctions::addSeconds(const DateTime& value, int seconds) {
  return moved(value, TimeSpan(0, 0, 0, seconds, 0), seconds);
}

DateTime DateFunctions::addMonths(const DateTime& value, int months) {
  __int64 month = static_cast<__int64>(value.getMonth()) + months;
  __int64 year = value.getYear();
  if (month > 12) {
    year += (month - 1) / 12;
    month -= month / 12 * 12;
  }
  if (month < 1) {
    month = 12 - month;
    year -= month / 12;
  }
  return onDate(value, year, month);
}

DateTime DateFunctions::addYears(const DateTime& value, int years) {
  return onDate(value, static_cast<__int64>(value.getYear()) + years, value.getMonth());
}

zkstring DateFunctions::weekDayName(const DateTime& value) {
  static constinit const zkstringliteral names[] = {"SUNDAY",   "MONDAY", "TUESDAY", "WEDNESDAY",
                                                    "THURSDAY", "FRIDAY", "SATURDAY"};
  return names[weekDay(value) - 1];
}

int DateFunctions::daysBetween(const DateTime& a, const DateTime& b) {
  const int days = (a - b).days();
  return after(a, b) ? days : static_cast<int>(0U - static_cast<unsigned int>(days));
}

int DateFunctions::yearsBetween(const DateTime& a, const DateTime& b) {
  if (before(a, b)) return -yearsBetween(b, a);
  return a.getYear() - b.getYear() - (earlierInYear(a, b) ? 1 : 0);
}

int DateFunctions::monthsBetween(const DateTime& a, const DateTime& b) {
  if (before(a, b)) return -monthsBetween(b, a);
  const int months = a.getMonth() - b.getMonth() - (a.getDate() < b.getDate() ? 1 : 0);
  return 12 * yearsBetween(a, b) + (months < 0 ? months + 12 : months);
}

DateTime DateFunctions::toLocalTime(const DateTime& value) { return splitBy(localtime_r, value); }
DateTime DateFunctions::toUTCTime(const DateTime& value) { return splitBy(gmtime_r, value); }

}  // namespace zarvik
