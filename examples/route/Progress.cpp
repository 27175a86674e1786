#include "Progress.h"

#include <unistd.h>

#include <cstdio>

namespace route {
namespace {
constexpr std::chrono::milliseconds interval(500);
}

Progress::Progress(bool quiet)
    : visible(isatty(STDERR_FILENO) != 0 && (quiet || isatty(STDOUT_FILENO) == 0)), next(Clock::now() + interval) {}

void Progress::show(long messages) {
  if (!visible || Clock::now() < next) return;
  std::fprintf(stderr, "\r%ld messages", messages);
  shown = true;
  next = Clock::now() + interval;
}

void Progress::clear() {
  if (shown) std::fputs("\r\x1b[K", stderr);
  shown = false;
}

}  // namespace route
