#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "Parsing.h"

/// What the C library's readers of numbers need beside the text.
namespace zarvik {

/// The text with a terminator; a short one without allocation.
class Terminated {
 public:
  explicit Terminated(const zkstring& text) {
    if (text.length() < room.size()) {
      *std::copy_n(text.data(), text.length(), room.data()) = '\0';
    } else {
      copy.assign(text.data(), text.length());
    }
  }
  const char* get() const { return copy.empty() ? room.data() : copy.c_str(); }

 private:
  std::array<char, 35> room;
  std::string copy;
};

/// Whether nothing but the characters of decimal numbers stands in the text, which keeps "inf" and "0x1p3" out.
inline bool isOfNumber(const zkstring& text) {
  return std::all_of(text.data(), text.data() + text.length(), [](char c) {
    return Parsing::isNumericalDigit(c) || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
  });
}

}  // namespace zarvik
