#pragma once

#include "ObjectFactory.h"
#include "ObjectPtrMap.h"

namespace zarvik {

/// The classes that are found by name at run time.
///
///     static const UserClass myTrigger("MyTrigger", new GenericObjectFactory<MyTrigger>);
///
/// Registering belongs to start-up: static initialisers of any module may register in any order, since the map and the
/// library's own classes in it come into being with the first use. After that, instances may be made on many threads,
/// if the factories allow it.
class UserClassManager {
 public:
  /// Owns `factory` (may be null) from here on. A factory of the same name before it is deleted: the last one wins.
  static void registerClass(const zkstring& name, ObjectFactory* factory);

  /// A new object of the class registered under `name`, compared byte for byte; it belongs to the caller. Throws
  /// TransformException "Class not found <name>" for an unknown name or a null factory.
  static Object* createInstance(const zkstring& name);

 private:
  static ObjectPtrMap<ObjectFactory>& getClassMap();
};

/// Calls a registration function when a static object of this class is initialised; keeps nothing.
class Registrar {
 public:
  Registrar(void (*function)()) { function(); }
};

/// Registers a class when a static object of this class is initialised; keeps nothing.
class UserClass {
 public:
  /// As `UserClassManager::registerClass`.
  UserClass(const zkstring& name, ObjectFactory* factory) { UserClassManager::registerClass(name, factory); }
};

}  // namespace zarvik
