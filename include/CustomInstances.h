#pragma once

#include "CustomClassSupport.h"
#include "SmallStringMap.h"

namespace zarvik {

/// The user's class `className` as a T: the instance that `kept` holds, which is made on the first call, stays the
/// map's own and serves all later ones. A map holds instances as one T only. Throws what
/// `CustomClassSupport::createInstance` throws, and then keeps nothing.
template <class T>
T& customInstance(SmallStringMap& kept, const zkstring& className) {
  if (ObjectRef* const instance = kept.get(className)) return static_cast<T&>(*instance);
  const SmartPtr<T> made(CustomClassSupport<T>().createInstance(className));
  kept.put(className, made.get());
  return *made;
}

}  // namespace zarvik
