#include "date/DateTime.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <random>

#include "Allocations.h"
#include "Support.h"

namespace zarvik {
namespace {

constexpr char complete[] = "yyyy-MM-dd HH:mm:ss.SSS";
const DateTime sample(2005, 9, 3, 7, 8, 59, 42);

std::string textOf(const DateTime& value, const char* pattern = complete) {
  char out[1000];
  const unsigned int length = value.asString(out, 0, pattern);
  EXPECT_EQ(std::strlen(out), length);
  EXPECT_EQ(value.toString(pattern), out);
  return out;
}

TEST(DateTime, printsByPattern) {
  struct Row {
    const char* pattern;
    const char* text;
  };
  constexpr Row rows[] = {
      {"", ""},
      {"H HHH d dddd m mmm s sss", "07 07 03 03 08 08 59 59"},
      {"S SS SSS SSSS", "042 042 042 042"},
      {"M MM MMM MMMM MMMMMM", "09 09 Sep September September"},
      {"y yy yyy yyyy yyyyy", "05 05 05 2005 05"},
      {"yyyyMMddTHHmmssSSS", "20050903T070859042"},
      {"''quoted'' %s", "''quote03'' %59"},  // no quoting: d and s are fields
      {"MMMMHHMMMM", "September07September"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(textOf(sample, row.pattern), row.text);
  }
}

TEST(DateTime, printsYearsOfAnyLength) {
  struct Row {
    int year;
    const char* text;
  };
  for (const Row& row : {Row{0, "0000 00"},
                         {50, "0050 50"},
                         {-44, "0044 44"},
                         {1979, "1979 79"},
                         {2030, "2030 30"},
                         {9999, "9999 99"},
                         {12345, "12345 45"}}) {
    EXPECT_EQ(textOf(DateTime(row.year, 1, 1, 0, 0, 0, 0), "yyyy yy"), row.text);
  }
}

TEST(DateTime, printsTextsOfAnyLengthWhole) {
  EXPECT_EQ(textOf(TimeSpan(1, -5), "S"), "0-5");  // zeros stand before the sign
  std::string pattern, expected;
  for (int runs = 1; runs < 60; ++runs) {
    EXPECT_EQ(textOf(TimeSpan(1, INT_MIN), (pattern += "S-").c_str()), expected += "-2147483648-");
  }
}

TEST(DateTime, printingAllocatesTheResultAlone) {
  const zkstring pattern = complete;
  char out[100];
  const Allocations before;
  sample.asString(out, sizeof out, complete);
  EXPECT_EQ(before.count(), 0);
  sample.toString(pattern);
  EXPECT_EQ(before.count(), 1);
  DateTime::fromString(out, complete);
  EXPECT_EQ(before.count(), 1);
}

TEST(DateTime, readsByPattern) {
  struct Row {
    const char* pattern;
    const char* text;
    const char* value;
  };
  constexpr Row rows[] = {
      {"", "", "1970-01-01 00:00:00.000"},
      {complete, "2024-02-29 23:59:58.997", "2024-02-29 23:59:58.997"},
      {"yyyyMMdd-HH:mm:ss.SSS", "20240229-01:02:03.004", "2024-02-29 01:02:03.004"},
      {"yy", "69", "2069-01-01 00:00:00.000"},
      {"yy", "70", "1970-01-01 00:00:00.000"},
      {"yyyyyy", "2024", "2024-01-01 00:00:00.000"},
      {"MMM dd, yyyy", "dEC 31, 0999", "0999-12-31 00:00:00.000"},
      {"MMMMdd", "auGUST07", "1970-08-07 00:00:00.000"},
      {"MMMMMM", "may", "1970-05-01 00:00:00.000"},
      {"S", "5", "1970-01-01 00:00:00.005"},
      {"SSHH", "12304", "1970-01-01 04:00:00.123"},  // three digits whatever the run
      {"SSS", "", "1970-01-01 00:00:00.000"},
      {"HH:mm", "1x:2", "1970-01-01 01:02:00.000"},  // numbers end at the first character that is none
      {"HHmm", "123", "1970-01-01 12:03:00.000"},
      {"HHmm", "", "1970-01-01 00:00:00.000"},
      {"yyyyMM", "12x506", "0012-06-01 00:00:00.000"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(textOf(DateTime::fromString(row.text, row.pattern)), row.value) << row.pattern;
  }
}

TEST(DateTime, tellsWhatCannotBeRead) {
  struct Row {
    const char* pattern;
    const char* text;
    const char* error;
  };
  constexpr Row rows[] = {
      {"y", "2", "Illegal year pattern in 'y'. At least 2 y's expected."},
      {"yyy-", "", "Illegal year pattern in 'yyy-'. Only patterns 'yy' and 'yyyy' are supported."},
      {"M", "", "Illegal month pattern in 'M'. At least 2 M's expected."},
      {"ddd", "", "Illegal date pattern in 'ddd'. Only pattern 'dd' is supported."},
      {"H", "", "Illegal hour pattern in 'H'. Only pattern 'HH' is supported."},
      {"mmm", "", "Illegal minute pattern in 'mmm'. Only pattern 'mm' is supported."},
      {"SSSS", "", "Illegal milli-seconds pattern in 'SSSS'. Only pattern 'SSS' is supported."},
      {"s", "", "Illegal seconds pattern in 's'. Only pattern 'ss' is supported."},
      {"dd MMM-", "01 Ma-", "Error parsing month part of date string, expected pattern MMM- found 01 Ma-"},
      {"MMMM", "Sept", "Error parsing month part of date string, expected pattern MMMM found Sept"},
      {"HH:mm", "12-30", "Error parsing date string, expected pattern 'HH:mm' found '12-30"},
      {"HH::", "12:", "Error parsing date string, expected pattern 'HH::' found '12:"},
      {"HH", "12:30", "Additional characters at the end of date string, expected pattern 'HH' found '12:30"},
      {"dd", "32", "Illegal date 1970-01-32"},
      {"yyyyMMdd", "190002", "Illegal date 1900-02-00"},
      {"yyyyMMdd HHmm", "19000229 2500", "Illegal date 1900-02-29"},
      {"HHmm", "2459", "Illegal time 24:59:00.000"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { DateTime::fromString(row.text, row.pattern); }), row.error);
  }
}

TEST(DateTime, looksAtNothingBehindTheText) {
  const std::string whole = "2024-02-29 23:59:58.997";
  for (unsigned int length = 0; length <= whole.size(); ++length) {
    const std::unique_ptr<char[]> exact(new char[length]);  // the sanitizer sees every byte beyond
    std::memcpy(exact.get(), whole.data(), length);
    const auto tried = [](auto read) {
      try {
        return textOf(read());
      } catch (const TransformRuntimeException& error) {
        return std::string(error.getMessage().c_str());
      }
    };
    EXPECT_EQ(tried([&] { return DateTime::fromString(exact.get(), length, complete); }),
              tried([&] { return DateTime::fromString(whole.substr(0, length).c_str(), complete); }));
  }
}

TEST(DateTime, agreesWithTheCLibrary) {
  std::mt19937 random(7);
  for (int i = 0; i < 20000; ++i) {
    std::time_t instant = std::uniform_int_distribution<std::time_t>(-12'000'000'000, 250'000'000'000)(random);
    std::tm fields{};
    gmtime_r(&instant, &fields);
    char text[100];
    std::strftime(text, sizeof text, "%y %b %B %d/%Y%m %H:%M:%S.123", &fields);
    const DateTime value = DateTime::fromString(text, "yy MMM MMMM dd/yyyyMM HH:mm:ss.SSS");
    EXPECT_EQ(textOf(value, "yy MMM MMMM dd/yyyyMM HH:mm:ss.SSS"), text);
    EXPECT_EQ(value.getTimeSpan().elapsedseconds(), instant + 2440588LL * 86400);
    EXPECT_EQ(DateTime(value.getTimeSpan()), value);
  }
}

TEST(DateTime, constructorsValidate) {
  EXPECT_EQ(errorOf<TransformRuntimeException>([] { DateTime(1582, 10, 31, 24, 0, 0, 0); }), "Illegal date 1582-10-31");
  EXPECT_EQ(errorOf<TransformRuntimeException>([] { DateTime(Date(), Time(0, 0, 0, 1000)); }),
            "Illegal time 00:00:00.1000");
}

TEST(DateTime, computesWithSpans) {
  const DateTime day(1582, 10, 4, 23, 0, 0, 900);
  EXPECT_EQ(textOf(day + TimeSpan(0, 1, 0, 0, 100)), "1582-10-15 00:00:01.000");
  EXPECT_EQ(textOf(day - TimeSpan(0, 24, 0, 0, 0)), "1582-10-03 23:00:00.900");
  EXPECT_EQ((day - (day + TimeSpan(5))).elapsedseconds(), 5) << "differences are magnitudes";
  for (const __int64 seconds : {LLONG_MAX, LLONG_MAX - 86400, 86400LL << 31, 86400LL << 32}) {
    const DateTime far = TimeSpan(seconds, INT_MIN);
    textOf(far + TimeSpan(seconds) - TimeSpan(0, INT_MAX), "yyyy MMMM dd");  // the fields mean nothing, but are sound
    EXPECT_FALSE((far - DateTime()).elapsedseconds() < 0);
  }
}

TEST(DateTime, orderAndEquality) {
  const DateTime late(2000, 1, 1, 11, 30, 0, 0);
  const DateTime early(2000, 1, 1, 10, 30, 0, 0);
  EXPECT_FALSE(early == late);
  EXPECT_TRUE(early != late && early < late && late > early && late >= early && early <= late && early <= early);
  EXPECT_FALSE(early >= early);
}

/// Checks, in a process of its own, what depends on the time zone that the process started with.
void inZone(const char* zone, const std::function<bool(std::time_t now)>& holds) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        setenv("TZ", zone, 1);
        tzset();
        std::exit(holds(std::time(nullptr)) ? 0 : 1);
      },
      testing::ExitedWithCode(0), "")
      << zone;
}

TEST(DateTime, timestampsCountFromTheEpochOfTheZone) {
  struct Row {
    const char* zone;
    int minutes;
  };
  for (const Row& row : {Row{"UTC0", 0}, {"IST-5:30", 330}, {"EST5", -300}}) {
    inZone(row.zone, [&](std::time_t) {
      std::time_t instant = 1'700'000'000 + row.minutes * 60;
      std::tm fields{};
      gmtime_r(&instant, &fields);
      const DateTime local(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min,
                           fields.tm_sec, 5);
      return DateTime::localOffset() % 1440 == row.minutes && local.toTimestamp() == 1'700'000'000'005 &&
             DateTime::fromTimestamp(1'700'000'000'005) == local;
    });
  }
}

TEST(DateTime, timestampsBeforeTheEpochAreMagnitudes) {
  const DateTime epoch = DateTime::fromTimestamp(0);
  EXPECT_EQ((epoch - TimeSpan(60)).toTimestamp(), 60000);
  EXPECT_EQ(DateTime::fromTimestamp(-60000), epoch - TimeSpan(60));
  EXPECT_EQ(DateTime::fromTimestamp(-1500), epoch + TimeSpan(0, 500)) << "a borrowed second is added";
  DateTime::fromTimestamp(LLONG_MIN);
  DateTime::fromTimestamp(LLONG_MAX);
}

TEST(DateTime, nowIsTheLocalClock) {
  inZone("IST-5:30", [](std::time_t before) {
    const __int64 now = DateTime::now().toTimestamp() / 1000;
    const Date today = DateTime::today().getDatePortion();
    return now >= before && now <= before + 60 && today.getTimeSpan() <= DateTime::now().getTimeSpan() &&
           DateTime::now().getTimeSpan() < today.getTimeSpan() + TimeSpan(1, 0, 0, 5, 0);
  });
}

}  // namespace
}  // namespace zarvik
