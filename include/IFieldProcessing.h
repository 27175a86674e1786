#pragma once

#include "ICustomClass.h"

namespace zarvik {

class DataObject;

/// A user's computation of one field's value.
class IFieldProcessing : public ICustomClass {
 public:
  virtual Object* process(const zkstring& argument, DataObject* object) = 0;  ///< the new value, the caller's own
};

}  // namespace zarvik
