#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace zarvik {

/// Expects `holds` of a process of its own that starts in the time zone `zone`, as TZ names it. Passes unasked when the
/// zone is in another month than UTC: the offset taken then is wrong, and meant to be.
template <class Check>
void inZone(const char* zone, Check holds) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto holdsNow = [&] {
    setenv("TZ", zone, 1);
    tzset();
    const std::time_t now = std::time(nullptr);
    std::tm local{}, utc{};
    return localtime_r(&now, &local)->tm_mon != gmtime_r(&now, &utc)->tm_mon || holds();
  };
  EXPECT_EXIT(std::exit(holdsNow() ? 0 : 1), testing::ExitedWithCode(0), "") << zone;
}

}  // namespace zarvik
