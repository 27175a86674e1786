#pragma once

#include <chrono>

namespace route {

/// Shows on standard error, twice a second, how many messages have gone through; only where somebody looks on: on a
/// terminal that does not already show a line for each message.
class Progress {
 public:
  explicit Progress(bool quiet);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { clear(); }

  void show(long messages);
  void clear();  ///< takes the line off the screen, for other output

 private:
  using Clock = std::chrono::steady_clock;
  bool visible;
  bool shown = false;
  Clock::time_point next;
};

}  // namespace route
