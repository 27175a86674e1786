#include "date/DateTime.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <string_view>

#include "Support.h"
#include "date/TimeZone.h"

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

/// Reads from memory that ends with the text, so that the sanitizer sees a look at any byte beyond.
DateTime readExactly(std::string_view text, const char* pattern) {
  const std::vector<char> exact(text.begin(), text.end());
  return DateTime::fromString(exact.data(), static_cast<unsigned int>(exact.size()), pattern);
}

TEST(DateTime, printsByPattern) {
  constexpr const char* rows[][2] = {
      {"", ""},
      {"H HHH d dddd m mmm s sss", "07 07 03 03 08 08 59 59"},
      {"S SS SSS SSSS .SSSS", "042 042 042 042 .042"},
      {"M MM MMM MMMM MMMMMM", "09 09 Sep September September"},
      {"y yy yyy yyyyy", "05 05 05 05"},
      {"yyyyMMddTHH:mm:ss.SSSyyyyMMddd", "20050903T07:08:59.04220050903"},
      {"''quoted'' HH:mm:sss", "''quote03'' 07:08:59"},  // no quoting: d is a field
  };
  for (const auto& [pattern, text] : rows) EXPECT_EQ(textOf(sample, pattern), text);
  for (const int year : {0, 50, -44, 1979, 2030, 9999, 12345}) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d %02d", std::abs(year), std::abs(year) % 100);
    EXPECT_EQ(textOf(DateTime(year, 1, 1, 0, 0, 0, 0), "yyyy yyyyy"), text);
  }
}

TEST(DateTime, printsTextsOfAnyLengthWhole) {
  std::string pattern, expected = "0-5";  // zeros stand before the sign
  EXPECT_EQ(textOf(TimeSpan(1, -5), "S"), expected);
  for (expected.clear(); pattern.size() < 120; expected += "-2147483648-") {
    EXPECT_EQ(textOf(TimeSpan(1, INT_MIN), pattern.c_str()), expected);
    pattern += "S-";
  }
}

TEST(DateTime, printingAllocatesTheResultAlone) {
  const zkstring pattern = complete;
  const Allocations before;
  DateTime::fromString("2024-02-29 23:59:58.997", complete);
  EXPECT_EQ(before.count(), 0);
  sample.toString(pattern);
  EXPECT_EQ(before.count(), 1);
}

TEST(DateTime, readsByPattern) {
  constexpr const char* rows[][3] = {
      {"", "", "1970-01-01 00:00:00.000"},
      {"yyyyMMdd-HH:mm:ss.SSS", "20240229-01:02:03.004", "2024-02-29 01:02:03.004"},
      {"yy", "69", "2069-01-01 00:00:00.000"},
      {"yy", "70", "1970-01-01 00:00:00.000"},
      {"yyyyyy", "2024", "2024-01-01 00:00:00.000"},
      {"MMM dd, yyyy", "dEC 31, 0999", "0999-12-31 00:00:00.000"},
      {"MMMMdd", "auGUST07", "1970-08-07 00:00:00.000"},
      {"S", "5", "1970-01-01 00:00:00.005"},
      {"SSHH", "12304", "1970-01-01 04:00:00.123"},  // three digits whatever the run
      {"HH:mm", "1x:2", "1970-01-01 01:02:00.000"},  // numbers end at the first character that is none
      {"HHmm", "123", "1970-01-01 12:03:00.000"},
      {"yyyyMMdd", "12x50607", "0012-06-07 00:00:00.000"},
      {"HH:mm:ss.SSS", "1x:2/:3x.", "1970-01-01 01:02:03.000"},
      {"HH:mm:ss.SSS", "01:02:03.4", "1970-01-01 01:02:03.004"},
  };
  for (const auto& [pattern, text, value] : rows) EXPECT_EQ(textOf(readExactly(text, pattern)), value) << text;
}

TEST(DateTime, tellsWhatCannotBeRead) {
  constexpr const char* rows[][3] = {
      {"y", "2", "Illegal year pattern in 'y'. At least 2 y's expected."},
      {"yyy-", "", "Illegal year pattern in 'yyy-'. Only patterns 'yy' and 'yyyy' are supported."},
      {"M", "", "Illegal month pattern in 'M'. At least 2 M's expected."},
      {"yyyyMMddd", "20240101", "Illegal date pattern in 'yyyyMMddd'. Only pattern 'dd' is supported."},
      {"H", "", "Illegal hour pattern in 'H'. Only pattern 'HH' is supported."},
      {"mmm", "", "Illegal minute pattern in 'mmm'. Only pattern 'mm' is supported."},
      {".SSSS", ".123", "Illegal milli-seconds pattern in '.SSSS'. Only pattern 'SSS' is supported."},
      {"HH:mm:sss", "01:02:03", "Illegal seconds pattern in 'HH:mm:sss'. Only pattern 'ss' is supported."},
      {"dd MMM-", "01 Ma-", "Error parsing month part of date string, expected pattern MMM- found 01 Ma-"},
      {"MMMM", "Sept", "Error parsing month part of date string, expected pattern MMMM found Sept"},
      {"HH:mm", "12-30", "Error parsing date string, expected pattern 'HH:mm' found '12-30"},
      {"yyyyMMdd-HH:mm:ss.SSS", "20050903-07:08:5",
       "Error parsing date string, expected pattern 'yyyyMMdd-HH:mm:ss.SSS' found '20050903-07:08:5"},
      {"HH::", "12:", "Error parsing date string, expected pattern 'HH::' found '12:"},
      {"HH", "12:30", "Additional characters at the end of date string, expected pattern 'HH' found '12:30"},
      {"yyyyMMdd HHmm", "19000229 2500", "Illegal date 1900-02-29"},
      {"HHmm", "2459", "Illegal time 24:59:00.000"},
  };
  for (const auto* row : rows) {
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { readExactly(row[1], row[0]); }), row[2]);
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

TEST(DateTime, timestampsCountFromTheEpochOfTheZone) {
  for (const auto& [zone, minutes] : std::map<const char*, int>{{"UTC0", 0}, {"IST-5:30", 330}, {"EST5", -300}}) {
    inZone(zone, [minutes = minutes] {
      const DateTime local = DateTime(2023, 11, 14, 16, 13, 20, 5) + TimeSpan(0, 0, minutes + 360, 0, 0);
      return DateTime::localOffset() == minutes && local.toTimestamp() == 1'700'000'000'005 &&
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
  inZone("IST-5:30", [before = std::time(nullptr)] {
    const TimeSpan today = DateTime::today().getTimeSpan();
    const DateTime now = DateTime::now();
    return now.toTimestamp() / 1000 - before < 60 && now.toTimestamp() / 1000 >= before && today <= now.getTimeSpan() &&
           now.getTimeSpan() < today + TimeSpan(1, 0, 0, 5, 0);
  });
}

}  // namespace
}  // namespace zarvik
