#include "formula/DateFunctions.h"

#include <climits>

#include "Support.h"
#include "date/TimeZone.h"

namespace zarvik {
namespace {

using Functions = DateFunctions;

DateTime read(const char* text) { return DateTime::fromString(text, "yyyy-MM-dd HH:mm:ss.SSS"); }
zkstring textOf(const DateTime& value) { return value.toString(zkstringliteral("yyyy-MM-dd HH:mm:ss.SSS")); }

TEST(DateFunctions, takesDatesApartAndAddsFixedUnits) {
  const DateTime value = read("2024-02-29 01:02:03.004");
  EXPECT_EQ(textOf(Functions::datePart(value)), "2024-02-29 00:00:00.000");
  EXPECT_EQ(textOf(Functions::timePart(value)), "0000-01-01 01:02:03.004");
  EXPECT_EQ(Functions::newTime(1, 2, 3, 4), Functions::timePart(value));
  EXPECT_EQ(Functions::weekDayName(value), "THURSDAY");
  EXPECT_EQ(Functions::weekDayName(Functions::addDays(value, -5)), "SATURDAY");
  EXPECT_EQ(textOf(Functions::addHours(value, 23)), "2024-03-01 00:02:03.004");
  EXPECT_EQ(textOf(Functions::addMinutes(value, -63)), "2024-02-28 23:59:03.004");
  EXPECT_EQ(textOf(Functions::addSeconds(value, INT_MIN)), "1956-02-10 21:47:55.004");
}

TEST(DateFunctions, addsMonthsAndYears) {
  const std::tuple<const char*, int, const char*> rows[] = {
      {"2000-11-15", 3, "2001-02-15"},
      {"2000-03-15", -3, "1999-12-15"},
      {"2000-01-15", 12, "2001-01-15"},
      {"2000-03-15", 21, "2000-12-15"},  // lowered again
      {"2000-01-31", 1, "Illegal date 2000-02-31"},
      {"2000-03-15", -4, "Illegal date 1999-13-15"},
      {"2000-03-15", -15, "Illegal date 1998-24-15"},
      {"2000-03-15", INT_MIN, "Illegal date -178954971--2147483639-15"},
  };
  const zkstring pattern = "yyyy-MM-dd";
  for (const auto& [start, months, expected] : rows) {
    zkstring found;
    const std::string error = errorOf<TransformRuntimeException>([&, text = start, count = months] {
      found = Functions::addMonths(DateTime::fromString(zkstring(text), pattern), count).toString(pattern);
    });
    EXPECT_EQ(found.empty() ? error : found.c_str(), expected);
  }
  EXPECT_EQ(textOf(Functions::addYears(read("2000-02-29 01:00:00.000"), -96)), "1904-02-29 01:00:00.000");
  EXPECT_EQ(errorOf<TransformRuntimeException>([] { Functions::addYears(read("2000-02-29 01:00:00.000"), 1); }),
            "Illegal date 2001-02-29");
}

TEST(DateFunctions, countsUnitsBetween) {
  // from month, day of 2000 to year, month, day: days, months
  constexpr int rows[][7] = {
      {11, 14, 2001, 3, 15, 121, 4}, {11, 16, 2001, 3, 15, 119, 3}, {1, 16, 2002, 1, 15, 730, 23},
      {1, 16, 2002, 1, 16, 731, 24}, {2, 28, 2002, 3, 1, 732, 24},  {2, 28, 2002, 3, 28, 759, 25},
      {3, 31, 2002, 2, 1, 672, 22},  {2, 29, 2000, 2, 29, 0, 0},    {1, 31, 2000, 2, 1, 1, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row[5]);
    const DateTime b(2000, row[0], row[1], 0, 0, 0, 0);
    const DateTime a(row[2], row[3], row[4], 0, 0, 0, 0);
    EXPECT_TRUE(Functions::daysBetween(a, b) == row[5] && Functions::daysBetween(b, a) == -row[5]);
    EXPECT_TRUE(Functions::monthsBetween(a, b) == row[6] && Functions::monthsBetween(b, a) == -row[6]);
    EXPECT_TRUE(Functions::yearsBetween(a, b) == row[6] / 12 && Functions::yearsBetween(b, a) == -(row[6] / 12));
  }
  const DateTime noon = read("2001-01-02 12:00:00.000");
  EXPECT_EQ(Functions::daysBetween(noon, read("2001-01-01 12:00:00.001")), 1) << "a borrowed second is added";
  EXPECT_EQ(Functions::daysBetween(noon, read("2001-01-01 12:00:02.001")), 0);
}

TEST(DateFunctions, comparesAllFields) {
  const DateTime early(2001, 1, 1, 10, 0, 0, 0), late(2001, 1, 1, 11, 0, 0, 0);
  EXPECT_TRUE(Functions::notEqual(early, late) && Functions::before(early, late) && Functions::greater(late, early));
  EXPECT_TRUE(Functions::greaterEqual(late, late) && Functions::lessEqual(late, late));
}

TEST(DateFunctions, convertsBetweenZones) {
  inZone("CET-1CEST,M3.5.0,M10.5.0/3", [] {
    return textOf(Functions::toUTCTime(read("2024-01-01 00:30:00.123"))) == "2023-12-31 23:30:00.123" &&
           textOf(Functions::toUTCTime(read("2024-07-01 00:30:00.000"))) == "2024-06-30 22:30:00.000" &&
           textOf(Functions::toLocalTime(read("2024-03-31 02:30:00.000"))) ==
               "2024-03-31 03:30:00.000";  // skipped hour
  });
  inZone("UTC0", [] {
    return textOf(Functions::toUTCTime(read("1969-12-31 23:59:58.000"))) == "1969-12-31 23:59:58.000" &&
           errorOf<TransformException>([] { Functions::toUTCTime(read("1969-12-31 23:59:59.000")); }) ==
               "Unsupported date range";
  });
}

}  // namespace
}  // namespace zarvik
