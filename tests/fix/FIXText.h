#pragma once

#include <algorithm>
#include <numeric>
#include <string>

namespace zarvik {

/// The text with the byte 1 for every '|'.
inline std::string soh(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\x01');
  return text;
}

/// The message around `fields` by the rules of FIX: `head` comes first, then the length, and the sum at the end.
inline std::string framed(const std::string& head, const std::string& fields) {
  const std::string text = soh(head + "9=" + std::to_string(fields.size()) + "|") + fields;
  const int sum = std::accumulate(text.begin(), text.end(), 0, [](int a, char c) { return (a + (c & 0xff)) % 256; });
  return text + soh("10=" + std::to_string(1000 + sum).substr(1) + "|");
}

}  // namespace zarvik
