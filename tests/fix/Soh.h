#pragma once

#include <algorithm>
#include <string>

#include "zkstring.h"

namespace zarvik {

/// The text with the byte 1 for every '|'.
inline std::string soh(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\x01');
  return text;
}

inline zkstring zk(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }
inline std::string str(const zkstring& text) { return std::string(text.data(), text.length()); }

}  // namespace zarvik
