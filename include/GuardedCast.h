#pragma once

#include <type_traits>

#include "Class.h"

namespace zarvik {

/// Throws the ClassCastException of a cast to `wanted` of an object of the class `found`; null stands for no object.
[[noreturn]] void throwClassCast(const std::type_info* found, const Class& wanted);

/// `object` as a T, the same object: no count changes hands. Throws ClassCastException when `object` is null or of
/// another class. `From` is any class with virtual operations; what is constant stays so. An object of that very class
/// costs a comparison, unless T's ancestors make a search of it.
template <class T, class From>
auto guardedCast(From* object) {
  using Wanted = std::conditional_t<std::is_const_v<From>, const T, T>;
  if constexpr (requires { static_cast<Wanted*>(object); }) {
    if (object != nullptr && typeid(*object) == typeid(T)) return static_cast<Wanted*>(object);
  }
  if (Wanted* const wanted = dynamic_cast<Wanted*>(object)) return wanted;
  throwClassCast(object != nullptr ? &typeid(*object) : nullptr, typeid(T));
}

/// A `dynamic_cast` that remembers the last object: asked about the same one again, it costs three comparisons in place
/// of a search among the object's ancestors. One thread at a time.
template <class T, class From>
class RememberedCast {
 public:
  /// `object` as a T; null if it is null or of another class.
  T* operator()(From* object) {
    if (object == nullptr) return nullptr;
    // An object of the same class at the same place is as good as the same; a part of it is told by where the whole is.
    const Seen now{object, dynamic_cast<const void*>(object), &typeid(*object)};
    if (now != seen) {
      found = dynamic_cast<T*>(object);
      seen = now;
    }
    return found;
  }

 private:
  struct Seen {
    const From* part = nullptr;
    const void* whole = nullptr;
    const std::type_info* type = nullptr;
    bool operator==(const Seen&) const = default;
  };
  Seen seen;
  T* found = nullptr;
};

}  // namespace zarvik
