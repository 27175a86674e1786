#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "Class.h"
#include "Exceptions.h"
#include "zkstring.h"

namespace zarvik {

/// How a failed expectation shows a string.
inline void PrintTo(const zkstring& text, std::ostream* out) {
  *out << '"' << std::string(text.data(), text.length()) << '"';
}

/// The class that `object` is of, below all its bases.
inline zkstring classOf(const Object& object) { return Class(typeid(object)); }

/// The text of the exception of exactly class E that `action` throws; a remark if it throws none or another.
template <class E, class Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const Exception& error) {
    if (typeid(error) != typeid(E)) return std::string("another class: ") + error.toString().c_str();
    return std::string(error.getMessage().data(), error.getMessage().length());
  }
  return "no exception";
}

}  // namespace zarvik
