#include "date/Date.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>

namespace zarvik {
namespace {

/// The definition of the count of days, in floating point.
double daysByDefinition(int year, int month, int day) {
  const double a = (year + 4800.0) * 12 + month - 3;
  const double b = a - std::floor(a / 12) * 12;
  const double n = std::floor((2 * b + 7 + 365 * a) / 12) + day + std::floor(a / 48) - 32083;
  return n > 2299160 ? n + std::floor(a / 4800) - std::floor(a / 1200) + 38 : n;
}

Date dateByDefinition(int j) {
  double x = j + 32082.5;
  if (j > 2299160) {
    double c = x + std::floor(x / 36525) - std::floor(x / 146100) - 38;
    if (j >= 1830691.5) c = c + 1;
    x = x + std::floor(c / 36525) - std::floor(c / 146100) - 38;
  }
  x = std::floor(x + 123);
  const double y = std::floor((x - 122.2) / 365.25);
  const double r = x - std::floor(y * 365.25);
  const int m = static_cast<int>(std::floor(r / 30.6001));
  return Date(static_cast<int>(std::floor((m - 1.9999) / 12) + y - 4800), m - 1 > 12 ? (m - 1) % 12 : m - 1,
              static_cast<int>(r - std::floor(m * 30.6001)));
}

Date unpacked(int days) { return Date(TimeSpan(days, 0, 0, 0, 0)); }

TEST(Date, everyCountIsThatOfTheDefinition) {
  for (int days = 0; days <= TimeDefs::LAST_JULIAN_DAY; ++days) {
    const Date date = unpacked(days);
    if (!(date == dateByDefinition(days)) || date.getTimeSpan().days() != days) FAIL() << days;
  }
  EXPECT_EQ(unpacked(TimeDefs::LAST_JULIAN_DAY), Date(32767, 12, 31));
  for (unsigned int days = INT_MAX; days < 1U << 31; days -= 99991) {  // far beyond the supported years
    ASSERT_EQ(unpacked(static_cast<int>(days)), dateByDefinition(static_cast<int>(days))) << days;
  }
  for (int year = -100000, month = -30, day = -400; year <= 100000; year += 3, month = -month + 1, day = 7 - day) {
    ASSERT_EQ(Date::pack(year, month, day).days(), std::abs(daysByDefinition(year, month, day))) << year;
  }
  EXPECT_EQ(Date::pack(INT_MAX, INT_MAX, INT_MAX), Date::pack(INT_MIN, INT_MIN, INT_MIN)) << "neither fits";
}

TEST(Date, agreesWithTheLibraryOnGregorianDays) {
  using namespace std::chrono;
  for (int count = TimeDefs::LAST_JULIAN_CALENDAR_DAY + 1; count <= TimeDefs::LAST_JULIAN_DAY; count += 11) {
    const sys_days day(days(count - 2440588));
    const year_month_day expected(day);
    const Date date = unpacked(count);
    ASSERT_TRUE(date.getYear() == int{expected.year()} && date.getDate() == static_cast<int>(unsigned{expected.day()}));
    ASSERT_EQ(date.getMonth(), static_cast<int>(unsigned{expected.month()}));
    ASSERT_EQ(date.dayOfWeek(), static_cast<int>(weekday(day).c_encoding()) + 1);
    ASSERT_TRUE(date.isValid() || (date.getYear() == 1582 && date.getMonth() == 10));
  }
}

TEST(Date, countsTheDaysOfTheJulianCalendar) {
  // Worked examples of Meeus, "Astronomical Algorithms", chapter 7.
  constexpr int rows[][4] = {{-4712, 1, 1, 0},        {-1000, 7, 12, 1356001}, {-1000, 2, 29, 1355867},
                             {-1001, 8, 17, 1355671}, {-123, 12, 31, 1676497}, {-122, 1, 1, 1676498},
                             {333, 1, 27, 1842713},   {837, 4, 10, 2026872},   {1582, 10, 4, 2299160}};
  for (const auto& [year, month, day, count] : rows) {
    EXPECT_EQ(Date::pack(year, month, day).days(), count) << year;
    EXPECT_EQ(unpacked(count), Date(year, month, day));
  }
  for (int dropped = 5; dropped <= 15; ++dropped) EXPECT_EQ(Date::pack(1582, 10, dropped).days(), 2299161);
}

TEST(Date, validity) {
  constexpr int lastDays[][3] = {{1600, 2, 29},  {1900, 2, 28},  {1500, 2, 29}, {2000, 2, 29}, {-4, 2, 29},
                                 {1582, 10, 21}, {1583, 10, 31}, {1582, 9, 30}, {1582, 2, 28}, {-4712, 1, 31},
                                 {-4713, 1, 0},  {32768, 1, 0},  {2000, 0, 0},  {2000, 13, 0}, {32767, 12, 31}};
  for (const auto& [year, month, last] : lastDays) {
    for (int day = -1; day <= 32; ++day) {
      EXPECT_EQ(Date(year, month, day).isValid(), day >= 1 && day <= last) << year << ' ' << month << ' ' << day;
    }
  }
}

TEST(Date, order) {
  const Date rising[] = {{1999, 12, 31}, {2000, 1, 1}, {2000, 1, 2}, {2000, 2, 1}};
  for (const Date& a : rising) {
    for (const Date& b : rising) {
      EXPECT_EQ(a.compare(b), (&a > &b) - (&a < &b));
      EXPECT_TRUE((a < b) == (&a < &b) && (a <= b) == (&a <= &b));
      EXPECT_EQ(a >= b, &a > &b) << "meant: false for equal dates";
    }
  }
}

TEST(Date, text) {
  EXPECT_EQ(Date(-5, 2, 9).toString(), "-005-02-09");
  EXPECT_EQ(Date(INT_MIN, INT_MIN, INT_MIN).toString(), "-2147483648--2147483648--2147483648");
}

}  // namespace
}  // namespace zarvik
