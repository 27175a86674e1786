#pragma once

#include <vector>

namespace zarvik {

class ExceptionDataObject;

/// What an operation whose name ends in 2 gives back: its value, and the errors that were met on the way and did not
/// stop it.
template <class T>
struct Result {
  T value{};  ///< null or empty on failure
  /// In the order of arrival, empty on full success. The entries have count 0 and belong to whoever holds the result:
  /// put each into a SmartPtr, or delete it.
  std::vector<ExceptionDataObject*> exceptions;
};

}  // namespace zarvik
