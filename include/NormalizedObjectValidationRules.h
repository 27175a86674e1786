#pragma once

#include "FieldInvalid.h"
#include "SmallStringMap.h"
#include "ThrowFrom.h"

namespace zarvik {

class DataObject;

/// The base of generated validations that need neither a context nor a handler. One thread at a time.
class NormalizedObjectValidationRules {
 public:
  virtual ~NormalizedObjectValidationRules() = default;

  void validate(DataObject* object) { validate0(object); }

 protected:
  virtual void validate0(DataObject* object) = 0;  ///< the generated step

  /// Whether the user's validation `className` accepts `value` (may be null), a field of `object`.
  bool customValidation(const zkstring& className, Object* value, const zkstring& argument, DataObject* object);
  [[noreturn]] void throwFieldInvalid(const zkstring& validationName, const zkstring& fieldName) const {
    throwFrom("include/NormalizedObjectValidationRules", fieldInvalid(validationName, fieldName));
  }

 private:
  SmallStringMap fieldValidations;  ///< of IFieldValidation, by class name
};

}  // namespace zarvik
