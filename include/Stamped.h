#pragma once

#include "Exceptions.h"

namespace zarvik {

/// Runs `work`; a TransformException that leaves it is handed to `stamp`, which adds what this stage knows, and goes
/// on. Other exceptions pass untouched.
template <class Stamp, class Work>
void stamped(Stamp stamp, Work work) {
  try {
    work();
  } catch (TransformException& error) {
    stamp(error);
    throw;
  }
}

}  // namespace zarvik
