#pragma once

#include "DataObject.h"
#include "GuardedCast.h"

namespace orders {

/// `object` as a T. Throws ClassCastException when it is null or of another class.
template <class T>
T& as(zarvik::DataObject* object) {
  return *zarvik::guardedCast<T>(object);
}

}  // namespace orders
