#pragma once

#include "zkstring.h"

namespace zarvik {

/// What is left of a constant text behind its first `start` characters; empty for a position outside it. Some error
/// texts are cut so by the index that they are about.
inline zkstring literalTail(const char* literal, int start) {
  const zkstring text = zkstring::static_string(literal);
  const auto position = static_cast<unsigned int>(start);
  return position < text.length() ? text.substr(position) : zkstring();
}

}  // namespace zarvik
