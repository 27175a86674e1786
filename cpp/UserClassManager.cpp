#include "UserClassManager.h"

#include "Exceptions.h"
#include "StartUp.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/UserClassManager";
}  // namespace

ObjectPtrMap<ObjectFactory>& registeredClasses() {
  static ObjectPtrMap<ObjectFactory> classes;
  return classes;
}

ObjectPtrMap<ObjectFactory>& UserClassManager::getClassMap() {
  // The library's own classes come first, so that a registration of the same name replaces them, whenever it comes.
  static const bool started = (registerLibraryClasses(), true);
  (void)started;
  return registeredClasses();
}

void UserClassManager::registerClass(const zkstring& name, ObjectFactory* factory) { getClassMap().put(name, factory); }

Object* UserClassManager::createInstance(const zkstring& name) {
  if (ObjectFactory* const factory = getClassMap().get(name)) return factory->newInstance();
  throwFrom(here, TransformException("Class not found " + name));
}

}  // namespace zarvik
