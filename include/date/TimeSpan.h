#pragma once

#include "zkstring.h"

namespace zarvik {

/// A length of time in seconds and milliseconds. The seconds are never negative: what would make them so stores their
/// magnitude or 0, as each operation tells. Seconds that leave 64 bits and milliseconds that leave 32 bits wrap.
class TimeSpan {
 public:
  TimeSpan() = default;
  TimeSpan(__int64 seconds) : TimeSpan(seconds, 0) {}  ///< a negative count gives 0
  TimeSpan(__int64 seconds, int milliseconds)          ///< a negative count of seconds gives 0; milliseconds as given
      : secondCount(seconds), milliseconds(milliseconds) {
    assertRange();
  }
  /// The sum of the magnitudes of the first four; the milliseconds as given.
  TimeSpan(int days, int hours, int minutes, int seconds, int milliseconds);

  /// So many days, whose seconds are counted in 32 bits and wrap; negative seconds give 0. Keeps the milliseconds.
  TimeSpan& operator=(int days);

  // Comparisons look at the seconds alone: odd on purpose.
  bool operator==(const TimeSpan& other) const { return secondCount == other.secondCount; }
  bool operator!=(const TimeSpan& other) const { return secondCount != other.secondCount; }
  bool operator<(const TimeSpan& other) const { return secondCount < other.secondCount; }
  bool operator<=(const TimeSpan& other) const { return secondCount <= other.secondCount; }
  bool operator>(const TimeSpan& other) const { return secondCount > other.secondCount; }
  bool operator>=(const TimeSpan& other) const { return secondCount >= other.secondCount; }

  TimeSpan operator+(const TimeSpan& other) const { return TimeSpan(*this) += other; }
  TimeSpan operator-(const TimeSpan& other) const { return TimeSpan(*this) -= other; }
  TimeSpan& operator+=(const TimeSpan& other);  ///< whole seconds of the milliseconds are carried over
  /// The magnitude of the difference of the seconds; odd on purpose: a second borrowed by the milliseconds is added.
  TimeSpan& operator-=(const TimeSpan& other);

  int days() const { return static_cast<int>(secondCount / 86400); }  ///< the low 32 bits of the count of whole days
  int hours() const { return static_cast<int>(secondCount / 3600 % 24); }
  int minutes() const { return static_cast<int>(secondCount / 60 % 60); }
  int seconds() const { return static_cast<int>(secondCount % 60); }
  int millis() const { return milliseconds; }
  __int64 elapsedseconds() const { return secondCount; }  ///< the whole span in seconds

  /// "1 day(s), 2 hour(s), 3 minute(s), 4 second(s)", cut to `size` bytes and terminated: `out` has size + 1 bytes.
  void asString(char* out, unsigned int size) const;

 private:
  void assertRange() {
    if (secondCount < 0) secondCount = 0;
  }

  __int64 secondCount = 0;
  int milliseconds = 0;
};

}  // namespace zarvik
