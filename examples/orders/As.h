#pragma once

#include <typeinfo>

#include "DataObject.h"
#include "GuardedCast.h"

namespace orders {

/// `object` as a T, at the cost of a comparison when it is of that very class. Throws ClassCastException when it is
/// null or of another class.
template <class T>
T& as(zarvik::DataObject* object) {
  if (object != nullptr && typeid(*object) == typeid(T)) return static_cast<T&>(*object);
  return *zarvik::guardedCast<T>(object);
}

}  // namespace orders
