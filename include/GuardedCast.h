#pragma once

#include "Class.h"
#include "Object.h"

namespace zarvik {

/// Throws the ClassCastException of a cast of `object` (may be null) to `wanted`.
[[noreturn]] void throwClassCast(const Object* object, const Class& wanted);

/// `object` as a T, the same object: no count changes hands. Throws ClassCastException when `object` is null or of
/// another class.
template <class T>
T* guardedCast(Object* object) {
  if (T* const wanted = dynamic_cast<T*>(object)) return wanted;
  throwClassCast(object, typeid(T));
}
template <class T>
const T* guardedCast(const Object* object) {
  if (const T* const wanted = dynamic_cast<const T*>(object)) return wanted;
  throwClassCast(object, typeid(T));
}

}  // namespace zarvik
