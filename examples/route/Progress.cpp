#include "Progress.h"

#include <unistd.h>

#include <cstdio>

namespace route {
namespace {
constexpr std::chrono::milliseconds interval(500);
}

Progress::Progress(bool quiet)
    : visible(isatty(STDERR_FILENO) != 0 && (quiet || isatty(STDOUT_FILENO) == 0)), next(Clock::now() + interval) {}

Progress::~Progress() {
  if (shown) std::fputs("\r\x1b[K", stderr);
}

void Progress::show(long messages) {
  if (!visible || Clock::now() < next) return;
  std::fprintf(stderr, "\r%ld messages", messages);
  shown = true;
  next = Clock::now() + interval;
}

}  // namespace route
