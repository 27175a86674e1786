#include "date/Date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace zarvik {
namespace {

/// The definition of the count of days, in floating point.
__int64 daysByDefinition(int year, int month, int day) {
  const double a = (year + 4800.0) * 12 + month - 3;
  const double b = a - std::floor(a / 12) * 12;
  double n = std::floor((2 * b + 7 + 365 * a) / 12) + day + std::floor(a / 48) - 32083;
  if (n > 2299160) n = n + std::floor(a / 4800) - std::floor(a / 1200) + 38;
  return static_cast<__int64>(n);
}

Date dateByDefinition(int days) {
  const double j = days;
  double x = j + 32082.5;
  if (j > 2299160) {
    double c = x + std::floor(x / 36525) - std::floor(x / 146100) - 38;
    if (j >= 1830691.5) c = c + 1;
    x = x + std::floor(c / 36525) - std::floor(c / 146100) - 38;
  }
  x = std::floor(x + 123);
  const double y = std::floor((x - 122.2) / 365.25);
  const double r = x - std::floor(y * 365.25);
  const double m = std::floor(r / 30.6001);
  const int month = static_cast<int>(m) - 1;
  return Date(static_cast<int>(std::floor((m - 1.9999) / 12) + y - 4800), month > 12 ? month % 12 : month,
              static_cast<int>(r - std::floor(m * 30.6001)));
}

Date unpacked(int days) { return Date(TimeSpan(days, 0, 0, 0, 0)); }

TEST(Date, everySupportedDayIsThatOfTheDefinition) {
  for (int days = 0; days <= TimeDefs::LAST_JULIAN_DAY; ++days) {
    const Date date = unpacked(days);
    if (!(date == dateByDefinition(days)) || date.getTimeSpan().days() != days) FAIL() << days;
  }
  EXPECT_EQ(unpacked(0), Date(-4712, 1, 1));
  EXPECT_EQ(unpacked(TimeDefs::LAST_JULIAN_DAY), Date(32767, 12, 31));
}

TEST(Date, fieldsOutsideTheCalendarAreCountedByTheDefinitionToo) {
  for (int year = -100000; year <= 100000; year += 97) {
    for (int month = -30; month <= 30; ++month) {
      for (const int day : {-400, 0, 1, 31, 400}) {
        ASSERT_EQ(Date::pack(year, month, day).elapsedseconds(), std::abs(daysByDefinition(year, month, day)) * 86400);
      }
    }
  }
  for (__int64 days = INT_MAX; days > TimeDefs::LAST_JULIAN_DAY; days -= 99991) {
    ASSERT_EQ(unpacked(static_cast<int>(days)), dateByDefinition(static_cast<int>(days))) << days;
  }
  EXPECT_EQ(Date::pack(INT_MAX, INT_MAX, INT_MAX), Date::pack(INT_MIN, INT_MIN, INT_MIN)) << "neither fits";
}

TEST(Date, agreesWithTheLibraryOnEveryGregorianDay) {
  using namespace std::chrono;
  constexpr int epoch = 2440588;  // 1 January 1970
  for (int days = TimeDefs::LAST_JULIAN_CALENDAR_DAY + 1; days <= TimeDefs::LAST_JULIAN_DAY; days += 5) {
    const sys_days day(std::chrono::days(days - epoch));
    const year_month_day expected(day);
    const Date date = unpacked(days);
    ASSERT_EQ(date, Date(int{expected.year()}, static_cast<int>(unsigned{expected.month()}),
                         static_cast<int>(unsigned{expected.day()})));
    ASSERT_EQ(date.dayOfWeek(), static_cast<int>(weekday(day).c_encoding()) + 1);
    ASSERT_TRUE(date.isValid() || (date.getYear() == 1582 && date.getMonth() == 10));
  }
}

TEST(Date, countsTheDaysOfTheJulianCalendar) {
  struct Row {
    int year, month, day, count;
  };  // worked examples of Meeus, "Astronomical Algorithms", chapter 7
  constexpr Row rows[] = {{-4712, 1, 1, 0},        {-1000, 7, 12, 1356001}, {-1000, 2, 29, 1355867},
                          {-1001, 8, 17, 1355671}, {-123, 12, 31, 1676497}, {-122, 1, 1, 1676498},
                          {333, 1, 27, 1842713},   {837, 4, 10, 2026872},   {1582, 10, 4, 2299160}};
  for (const Row& row : rows) {
    EXPECT_EQ(Date::pack(row.year, row.month, row.day).days(), row.count) << row.year;
    EXPECT_EQ(unpacked(row.count), Date(row.year, row.month, row.day));
    EXPECT_TRUE(Date(row.year, row.month, row.day).isValid());
  }
  for (int dropped = 5; dropped <= 15; ++dropped) EXPECT_EQ(Date::pack(1582, 10, dropped).days(), 2299161);
}

TEST(Date, validity) {
  struct Row {
    int year, month, lastDay;
  };
  constexpr Row rows[] = {{1600, 2, 29},  {1900, 2, 28},  {1500, 2, 29}, {2000, 2, 29}, {-4, 2, 29},    {-3, 2, 28},
                          {1582, 10, 21}, {1583, 10, 31}, {1582, 9, 30}, {1582, 2, 28}, {-4712, 1, 31}, {32767, 12, 31},
                          {-4713, 1, 0},  {32768, 1, 0},  {2000, 0, 0},  {2000, 13, 0}};
  for (const Row& row : rows) {
    for (int day = -1; day <= 32; ++day) {
      EXPECT_EQ(Date(row.year, row.month, day).isValid(), day >= 1 && day <= row.lastDay)
          << Date(row.year, row.month, day).toString().c_str();
    }
  }
}

TEST(Date, comparesFieldByField) {
  const Date rising[] = {{1999, 12, 31}, {2000, 1, 1}, {2000, 1, 2}, {2000, 2, 1}};
  for (const Date& a : rising) {
    for (const Date& b : rising) {
      EXPECT_EQ(a.compare(b), (&a > &b) - (&a < &b));
      EXPECT_EQ(a < b, &a < &b);
      EXPECT_EQ(a <= b, &a <= &b);
      EXPECT_EQ(a >= b, &a > &b) << "as told, not for equal dates";
    }
  }
}

TEST(Date, text) {
  EXPECT_EQ(Date(2024, 2, 9).toString(), "2024-02-09");
  EXPECT_EQ(Date(-5, 10, 31).toString(), "-005-10-31");
  EXPECT_EQ(Date(INT_MIN, INT_MIN, INT_MIN).toString(), "-2147483648--2147483648--2147483648");
}

}  // namespace
}  // namespace zarvik
