#pragma once

#include <type_traits>

#include "Class.h"

namespace zarvik {

/// Throws the ClassCastException of a cast to `wanted` of an object of the class `found`; null stands for no object.
[[noreturn]] void throwClassCast(const std::type_info* found, const Class& wanted);

/// `object` as a T, the same object: no count changes hands. Throws ClassCastException when `object` is null or of
/// another class. `From` is any class with virtual operations; what is constant stays so.
template <class T, class From>
auto guardedCast(From* object) {
  using Wanted = std::conditional_t<std::is_const_v<From>, const T, T>;
  if (Wanted* const wanted = dynamic_cast<Wanted*>(object)) return wanted;
  throwClassCast(object != nullptr ? &typeid(*object) : nullptr, typeid(T));
}

}  // namespace zarvik
