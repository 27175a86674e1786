#pragma once

#include "Exceptions.h"

namespace zarvik {

/// Runs `work` and gives its result; a TransformException that leaves it is handed to `stamp`, which adds what this
/// stage knows, and goes on. Other exceptions pass untouched.
template <class Stamp, class Work>
auto stamped(Stamp stamp, Work work) -> decltype(work()) {
  try {
    return work();
  } catch (TransformException& error) {
    stamp(error);
    throw;
  }
}

/// Runs `work`; errors leave it with the phase `phase`, unless an inner stage has set one.
template <class Work>
auto withPhase(const zkstring& phase, Work work) {
  return stamped([&](TransformException& error) { error.fillPhase(phase); }, work);
}

/// Runs `work`; errors leave it with the error type `type`, unless an inner stage has set one.
template <class Work>
auto withErrorType(const zkstring& type, Work work) {
  return stamped([&](TransformException& error) { error.fillErrorType(type); }, work);
}

}  // namespace zarvik
