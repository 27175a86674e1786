#include "LineSource.h"

#include <algorithm>
#include <climits>
#include <stdexcept>

#include "Frame.h"

namespace route {

LineSource::LineSource(std::string_view line) : text(line) {
  if (text.size() > INT_MAX) throw std::length_error("The line is longer than 2 GiB");
  if (text.find(fieldEnd) == std::string::npos) std::replace(text.begin(), text.end(), '|', fieldEnd);
}

const char* LineSource::getAsBytes(int& length) {
  length = static_cast<int>(text.size());
  return text.data();
}

std::string_view bytesOf(zarvik::InputSource& source) {
  int length = 0;
  const char* const bytes = source.getAsBytes(length);
  return {bytes, static_cast<std::size_t>(length)};
}

}  // namespace route
