#pragma once

#include "Object.h"

namespace zarvik {

/// Makes objects of one class, for those who know the class by name only.
class ObjectFactory : public Object {
 public:
  virtual Object* newInstance() = 0;  ///< a new object, with count 0 if it is counted, which belongs to the caller
};

/// Makes objects of class `T` with their default constructor.
template <class T>
class GenericObjectFactory : public ObjectFactory {
 public:
  Object* newInstance() override { return new T; }
  Object* clone() const override { return new GenericObjectFactory<T>; }
};

}  // namespace zarvik
