#include "date/Time.h"

#include <cstdio>

namespace zarvik {

zkstring Time::toString() const {
  char text[50];
  const int length = std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", hours, minutes, seconds, milliseconds);
  return zkstring(text, static_cast<unsigned int>(length));
}

}  // namespace zarvik
