#pragma once

#include "ObjectFactory.h"
#include "ObjectPtrMap.h"

namespace zarvik {

/// Registers the classes that are there without anybody asking: the class map calls it before its first use.
void registerLibraryClasses();

/// The class map as it stands, without the library's classes having been seen to.
ObjectPtrMap<ObjectFactory>& registeredClasses();

/// The body of a registration function: registers `T`, once in the life of the process.
///
/// Goes past `UserClassManager`, whose first use runs the registration functions itself.
template <class T>
void registerLibraryClass(const zkstring& name) {
  static const bool once = (registeredClasses().put(name, new GenericObjectFactory<T>), true);
  (void)once;
}

}  // namespace zarvik
