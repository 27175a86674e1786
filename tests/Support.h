#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "Allocations.h"
#include "zarvikrt.h"

namespace zarvik {

inline zkstring zk(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }
inline std::string str(const zkstring& text) { return std::string(text.data(), text.length()); }

/// How a failed expectation shows a string.
inline void PrintTo(const zkstring& text, std::ostream* out) { *out << '"' << str(text) << '"'; }

/// The class that `object` is of, below all its bases.
inline zkstring classOf(const Object& object) { return Class(typeid(object)); }

/// The text of the exception of exactly class E that `action` throws; a remark if it throws none or another.
template <class E, class Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const Exception& error) {
    if (typeid(error) != typeid(E)) return std::string("another class: ") + error.toString().c_str();
    return str(error.getMessage());
  }
  return "no exception";
}

/// A Base that counts how many objects of its kind are alive, for tests of who lets go of what.
template <class Base>
struct Living : Base {
  Living() { ++alive; }
  ~Living() override { --alive; }
  inline static int alive = 0;
};

/// An internal message that can do nothing, for tests that override what they look at.
struct NoTransaction : BusinessTransactionWrapper {
  NoTransaction() : BusinessTransactionWrapper(nullptr) {}
};

}  // namespace zarvik
