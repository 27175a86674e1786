#include "date/TimeSpan.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "date/Time.h"

namespace zarvik {
namespace {

using Parts = std::pair<__int64, int>;  // seconds and milliseconds

Parts partsOf(const TimeSpan& span) { return {span.elapsedseconds(), span.millis()}; }
TimeSpan spanOf(const Parts& parts) { return TimeSpan(parts.first, parts.second); }

TEST(TimeSpan, secondsAreNeverNegative) {
  EXPECT_EQ(partsOf(TimeSpan(LLONG_MIN, -7)), Parts(0, -7));
  EXPECT_EQ(partsOf(TimeSpan(-1, -1, -1, -1, -1)), Parts(86400 + 3600 + 60 + 1, -1));
  EXPECT_EQ(partsOf(TimeSpan(INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN)), Parts(90061 * (1LL << 31), INT_MIN));
}

TEST(TimeSpan, daysAreAssignedIn32Bits) {
  constexpr __int64 rows[][2] = {{2, 172800}, {-2, 0}, {24856, 0}, {49711, 63104}, {-24856, 2147408896}};
  for (const auto& [days, seconds] : rows) {
    TimeSpan span(5, 6);
    span = static_cast<int>(days);
    EXPECT_EQ(partsOf(span), Parts(seconds, 6)) << days;
  }
}

TEST(TimeSpan, addsAndSubtracts) {
  const Parts rows[][4] = {
      {{100, 0}, {160, 0}, {260, 0}, {60, 0}},
      {{10, 100}, {5, 200}, {15, 300}, {6, 900}},  // the borrowed second is added
      {{1, 700}, {1, 2700}, {5, 400}, {2, 0}},
      {{1, -700}, {1, 100}, {2, -600}, {1, 200}},
      {{3, 0}, {3, 2001}, {8, 1}, {3, 999}},
      {{LLONG_MAX, 999}, {1, 0}, {0, 999}, {LLONG_MAX - 1, 999}},
      {{LLONG_MAX, 999}, {0, 1}, {0, 0}, {LLONG_MAX, 998}},
      {{0, INT_MIN}, {0, 0}, {0, INT_MIN}, {2147484, 352}},
      {{0, INT_MAX}, {0, 1}, {0, INT_MIN}, {0, INT_MAX - 1}},
      {{LLONG_MAX, -1}, {0, 0}, {LLONG_MAX, -1}, {0, 999}},
  };
  for (const auto& [a, b, sum, difference] : rows) {
    EXPECT_EQ(partsOf(spanOf(a) + spanOf(b)), sum);
    EXPECT_EQ(partsOf(spanOf(a) - spanOf(b)), difference);
  }
}

TEST(TimeSpan, comparesSecondsAlone) {
  EXPECT_TRUE(TimeSpan(1, 5) == TimeSpan(1, 900) && TimeSpan(1, 5) >= TimeSpan(1, 900));
  EXPECT_FALSE(TimeSpan(1, 5) < TimeSpan(1, 900) || TimeSpan(1, 5) != TimeSpan(1, 900));
}

TEST(TimeSpan, textIsCutToTheBuffer) {
  const std::string whole = "1 day(s), 2 hour(s), 3 minute(s), 4 second(s)";
  for (unsigned int size = 0; size < 60; ++size) {
    std::string out(size + 1, '#');
    TimeSpan(1, 2, 3, 4, 5).asString(out.data(), size);
    EXPECT_EQ(whole.substr(0, size), out.c_str());
  }
}

TEST(Time, isWhatASpanHasBeyondWholeDays) {
  EXPECT_EQ(Time(TimeSpan(3, 23, 59, 58, 7)).toString(), "23:59:58.007");
  EXPECT_EQ(partsOf(Time(23, 59, 58, 7).getTimeSpan()), Parts(86398, 7));
}

TEST(Time, validity) {
  EXPECT_TRUE(Time(23, 59, 59, 999).isValid());
  for (const Time& time : {Time(24, 0, 0, 0), Time(0, 60, 0, 0), Time(0, 0, 60, 0), Time(0, 0, 0, 1000),
                           Time(-1, 0, 0, 0), Time(0, -1, 0, 0), Time(0, 0, -1, 0), Time(0, 0, 0, -1)}) {
    EXPECT_FALSE(time.isValid()) << time.toString().c_str();
  }
}

TEST(Time, equalityOverlooksTheHours) {
  EXPECT_TRUE(Time(10, 30, 0, 0) == Time(11, 30, 0, 0) && Time(10, 30, 0, 0).compare(Time(11, 0, 0, 0)) == -1);
  EXPECT_FALSE(Time(10, 0, 0, 0) >= Time(10, 0, 0, 0)) << "meant";
}

}  // namespace
}  // namespace zarvik
