#include "date/TimeSpan.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "date/TimeDefs.h"

namespace zarvik {
namespace {

__int64 magnitude(int value) { return std::abs(static_cast<__int64>(value)); }

__int64 wrappedSum(__int64 a, __int64 b) {
  return static_cast<__int64>(static_cast<unsigned long long>(a) + static_cast<unsigned long long>(b));
}
}  // namespace

TimeSpan::TimeSpan(int days, int hours, int minutes, int seconds, int milliseconds)
    : secondCount(TimeDefs::SECONDS_IN_DAY * magnitude(days) + TimeDefs::SECONDS_IN_HOUR * magnitude(hours) +
                  TimeDefs::SECONDS_IN_MINUTE * magnitude(minutes) + magnitude(seconds)),
      milliseconds(milliseconds) {}

TimeSpan& TimeSpan::operator=(int days) {
  secondCount = static_cast<int>(static_cast<unsigned int>(days) * unsigned{TimeDefs::SECONDS_IN_DAY});
  assertRange();
  return *this;
}

TimeSpan& TimeSpan::operator+=(const TimeSpan& other) {
  secondCount = wrappedSum(secondCount, other.secondCount);
  milliseconds =
      static_cast<int>(static_cast<unsigned int>(milliseconds) + static_cast<unsigned int>(other.milliseconds));
  if (milliseconds >= 1000) {
    secondCount = wrappedSum(secondCount, milliseconds / 1000);
    milliseconds %= 1000;
  }
  assertRange();
  return *this;
}

TimeSpan& TimeSpan::operator-=(const TimeSpan& other) {
  secondCount = std::abs(secondCount - other.secondCount);  // neither is negative
  milliseconds =
      static_cast<int>(static_cast<unsigned int>(milliseconds) - static_cast<unsigned int>(other.milliseconds));
  if (milliseconds < 0) {
    const __int64 borrowed = (999 - static_cast<__int64>(milliseconds)) / 1000;
    milliseconds = static_cast<int>(milliseconds + 1000 * borrowed);
    secondCount = wrappedSum(secondCount, borrowed);
  }
  assertRange();
  return *this;
}

void TimeSpan::asString(char* out, unsigned int size) const {
  char text[100];  // four numbers of at most 11 characters and 42 of text
  const int length = std::snprintf(text, sizeof text, "%d day(s), %d hour(s), %d minute(s), %d second(s)", days(),
                                   hours(), minutes(), seconds());
  const unsigned int copied = std::min(size, static_cast<unsigned int>(length));
  std::copy_n(text, copied, out);
  out[copied] = '\0';
}

}  // namespace zarvik
