#include "date/TimeSpan.h"

#include <gtest/gtest.h>

#include <climits>

#include "date/Time.h"

namespace zarvik {
namespace {

struct Parts {
  __int64 seconds;
  int milliseconds;
};

void expectSpan(const TimeSpan& span, Parts expected) {
  EXPECT_EQ(span.elapsedseconds(), expected.seconds);
  EXPECT_EQ(span.millis(), expected.milliseconds);
}

TEST(TimeSpan, secondsAreNeverNegative) {
  expectSpan(TimeSpan(-1), {0, 0});
  expectSpan(TimeSpan(LLONG_MIN, -7), {0, -7});
  expectSpan(TimeSpan(-1, -1, -1, -1, -1), {86400 + 3600 + 60 + 1, -1});
  expectSpan(TimeSpan(INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN), {90061 * (1LL << 31), INT_MIN});
}

TEST(TimeSpan, daysAreAssignedIn32Bits) {
  struct Row {
    int days;
    __int64 seconds;
  };
  // 49711 * 86400 = 2^32 + 63104; 24856 * 86400 is above 2^31
  for (const Row& row :
       {Row{2, 172800}, {-2, 0}, {24855, 2147472000}, {24856, 0}, {49711, 63104}, {-24856, 2147408896}}) {
    TimeSpan span(5, 6);
    span = row.days;
    expectSpan(span, {row.seconds, 6});
  }
}

TEST(TimeSpan, addsAndSubtracts) {
  struct Row {
    Parts a, b, sum, difference;
  };
  constexpr Row rows[] = {
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
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.a.seconds << '.' << row.a.milliseconds);
    const TimeSpan a(row.a.seconds, row.a.milliseconds);
    const TimeSpan b(row.b.seconds, row.b.milliseconds);
    expectSpan(a + b, row.sum);
    expectSpan(a - b, row.difference);
  }
}

TEST(TimeSpan, comparesSecondsAlone) {
  EXPECT_TRUE(TimeSpan(1, 5) == TimeSpan(1, 900) && TimeSpan(1, 5) >= TimeSpan(1, 900));
  EXPECT_FALSE(TimeSpan(1, 5) < TimeSpan(1, 900) || TimeSpan(1, 5) != TimeSpan(1, 900));
}

TEST(TimeSpan, textIsCutToTheBuffer) {
  const TimeSpan span(1, 2, 3, 4, 5);
  const zkstring whole = "1 day(s), 2 hour(s), 3 minute(s), 4 second(s)";
  for (unsigned int size = 0; size < 60; ++size) {
    std::string out(size + 1, '#');
    span.asString(out.data(), size);
    EXPECT_EQ(whole.substr(0, size), out.c_str());
  }
}

TEST(Time, isWhatASpanHasBeyondWholeDays) {
  EXPECT_EQ(Time(TimeSpan(3, 23, 59, 58, 7)).toString(), "23:59:58.007");
  expectSpan(Time(23, 59, 58, 7).getTimeSpan(), {86398, 7});
}

TEST(Time, validity) {
  EXPECT_TRUE(Time(23, 59, 59, 999).isValid() && Time().isValid());
  for (const Time& time : {Time(24, 0, 0, 0), Time(0, 60, 0, 0), Time(0, 0, 60, 0), Time(0, 0, 0, 1000),
                           Time(-1, 0, 0, 0), Time(0, -1, 0, 0), Time(0, 0, -1, 0), Time(0, 0, 0, -1)}) {
    EXPECT_FALSE(time.isValid()) << time.toString().c_str();
  }
}

TEST(Time, equalityOverlooksTheHours) {
  EXPECT_TRUE(Time(10, 30, 0, 0) == Time(11, 30, 0, 0));
  EXPECT_EQ(Time(10, 30, 0, 0).compare(Time(11, 0, 0, 0)), -1);
  EXPECT_FALSE(Time(10, 0, 0, 0) >= Time(10, 0, 0, 0));
}

}  // namespace
}  // namespace zarvik
