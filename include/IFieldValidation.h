#pragma once

#include "ICustomClass.h"

namespace zarvik {

class DataObject;

/// A user's test of one field.
class IFieldValidation : public ICustomClass {
 public:
  /// Whether `value` (may be null), a field of `object`, is valid.
  virtual bool validate(const zkstring& argument, const Object* value, DataObject* object) = 0;
};

}  // namespace zarvik
