#pragma once

#include "Exceptions.h"
#include "ThrowFrom.h"
#include "UserClassManager.h"

namespace zarvik {

/// Makes registered classes as the interface `T` that the caller needs.
template <class T>
class CustomClassSupport {
 public:
  /// A new object, with count 0 if it is counted, which belongs to the caller. Throws what
  /// `UserClassManager::createInstance` throws, and TransformException for a class that is no T; its object is gone.
  T* createInstance(const zkstring& name) const {
    Object* const instance = UserClassManager::createInstance(name);
    if (T* const wanted = dynamic_cast<T*>(instance)) return wanted;
    const SmartPtr<Object> refused(instance);  // counted up, so that letting go deletes a counted object too
    throwFrom("include/CustomClassSupport",
              TransformException("Error creating custom class instance - " + name + " is not of expected type"));
  }
};

}  // namespace zarvik
