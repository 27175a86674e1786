#include "formula/DateFunctions.h"

#include <climits>
#include <cstdlib>
#include <ctime>

#include "Support.h"

namespace zarvik {
namespace {

using Functions = DateFunctions;

DateTime read(const char* text) { return DateTime::fromString(text, "yyyy-MM-dd HH:mm:ss.SSS"); }
zkstring textOf(const DateTime& value) { return value.toString(zkstringliteral("yyyy-MM-dd HH:mm:ss.SSS")); }

TEST(DateFunctions, partsOfADate) {
  const DateTime value = read("2024-02-29 01:02:03.004");
  EXPECT_EQ(textOf(Functions::datePart(value)), "2024-02-29 00:00:00.000");
  EXPECT_EQ(textOf(Functions::timePart(value)), "0000-01-01 01:02:03.004");
  EXPECT_EQ(Functions::newTime(1, 2, 3, 4), Functions::timePart(value));
  EXPECT_EQ(errorOf<TransformRuntimeException>([] { Functions::newTime(24, 0, 0, 0); }), "Illegal time 24:00:00.000");
  EXPECT_EQ(Functions::weekDayName(value), "THURSDAY");
  EXPECT_EQ(Functions::weekDayName(Functions::nextDay(Functions::nextDay(value))), "SATURDAY");
  EXPECT_EQ(Functions::weekDayName(DateTime(1582, 10, 15, 0, 0, 0, 0)), "FRIDAY");
}

TEST(DateFunctions, addsUnitsOfFixedLength) {
  const DateTime start = read("2024-03-01 00:00:00.500");
  EXPECT_EQ(textOf(Functions::previousDay(start)), "2024-02-29 00:00:00.500");
  EXPECT_EQ(textOf(Functions::addDays(start, 366)), "2025-03-02 00:00:00.500");
  EXPECT_EQ(textOf(Functions::addHours(start, -25)), "2024-02-28 23:00:00.500");
  EXPECT_EQ(textOf(Functions::addMinutes(start, -1)), "2024-02-29 23:59:00.500");
  EXPECT_EQ(textOf(Functions::addSeconds(start, INT_MIN)), "1956-02-11 20:45:52.500");
}

TEST(DateFunctions, addsMonthsAndYears) {
  struct Row {
    const char* start;
    int months;
    const char* result;
  };
  constexpr Row rows[] = {
      {"2000-11-15", 3, "2001-02-15"},
      {"2000-11-15", 1, "2000-12-15"},
      {"2000-12-15", 1, "2001-01-15"},
      {"2000-03-15", -2, "2000-01-15"},
      {"2000-03-15", -3, "1999-12-15"},
      {"2000-01-15", 12, "2001-01-15"},
      {"2000-03-15", 21, "2000-12-15"},  // lowered again
      {"2000-12-15", 36, "2002-12-15"},  // the same
      {"2000-01-31", 1, "Illegal date 2000-02-31"},
      {"2000-03-15", -4, "Illegal date 1999-13-15"},
      {"2000-03-15", -15, "Illegal date 1998-24-15"},
      {"2000-03-15", INT_MIN, "Illegal date"},
      {"2000-03-15", INT_MAX, "Illegal date"},
  };
  for (const Row& row : rows) {
    std::string result;
    try {
      result = textOf(Functions::addMonths(DateTime::fromString(row.start, "yyyy-MM-dd"), row.months)).c_str();
    } catch (const TransformRuntimeException& error) {
      result = error.getMessage().c_str();
    }
    EXPECT_EQ(result.rfind(row.result, 0), 0U) << row.start << " " << row.months << " " << result;
  }
  EXPECT_EQ(textOf(Functions::addYears(read("2000-02-29 01:00:00.000"), -96)), "1904-02-29 01:00:00.000");
  EXPECT_EQ(errorOf<TransformRuntimeException>([] { Functions::addYears(read("2000-02-29 01:00:00.000"), 1); }),
            "Illegal date 2001-02-29");
}

TEST(DateFunctions, countsUnitsBetween) {
  struct Row {
    const char* a;
    const char* b;
    int days, months, years;
  };
  constexpr Row rows[] = {
      {"2001-01-02", "2001-01-01", 1, 0, 0},    {"2001-03-15", "2000-11-14", 121, 4, 0},
      {"2001-03-15", "2000-11-16", 119, 3, 0},  {"2002-01-15", "2000-01-16", 730, 23, 1},
      {"2002-01-16", "2000-01-16", 731, 24, 2}, {"2002-03-01", "2000-02-28", 732, 24, 2},
      {"2002-03-28", "2000-02-28", 759, 25, 2}, {"2002-02-01", "2000-03-31", 672, 22, 1},
      {"2000-02-29", "2000-02-29", 0, 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.a);
    const DateTime a = DateTime::fromString(row.a, "yyyy-MM-dd");
    const DateTime b = DateTime::fromString(row.b, "yyyy-MM-dd");
    for (const int sign : {1, -1}) {
      const DateTime& later = sign > 0 ? a : b;
      const DateTime& earlier = sign > 0 ? b : a;
      EXPECT_EQ(Functions::daysBetween(later, earlier), sign * row.days);
      EXPECT_EQ(Functions::monthsBetween(later, earlier), sign * row.months);
      EXPECT_EQ(Functions::yearsBetween(later, earlier), sign * row.years);
    }
  }
  const DateTime noon = read("2001-01-02 12:00:00.000");
  EXPECT_EQ(Functions::daysBetween(noon, read("2001-01-01 12:00:00.001")), 1) << "a borrowed second is added";
  EXPECT_EQ(Functions::daysBetween(noon, read("2001-01-01 12:00:02.001")), 0);
}

TEST(DateFunctions, comparesAllFields) {
  const DateTime early = read("2001-01-01 10:00:00.000");
  const DateTime late = read("2001-01-01 11:00:00.000");
  EXPECT_TRUE(Functions::notEqual(early, late) && Functions::before(early, late) && Functions::greater(late, early));
  EXPECT_TRUE(Functions::greaterEqual(late, late) && Functions::lessEqual(late, late));
}

/// Whether `holds` does in a process that starts in the given time zone.
void inZone(const char* zone, bool (*holds)()) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        setenv("TZ", zone, 1);
        tzset();
        std::exit(holds() ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
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

TEST(DateFunctions, zonesOfDates) {
  const DateTime value = read("2024-02-29 01:02:03.004");
  EXPECT_EQ(Functions::toISODate(value).getTimeZoneOffset(), 0);
  EXPECT_EQ(Functions::toISODate(value, -90).getTimeZoneOffset(), -90);
  EXPECT_EQ(Functions::toDate(Functions::toISODate(value, -90)), value);
}

}  // namespace
}  // namespace zarvik
