#include "FieldInvalid.h"

namespace zarvik {

FieldValidationException fieldInvalid(const zkstring& validationName, const zkstring& fieldName) {
  return {"Validation '" + validationName + "' failed. Field '" + fieldName + "' is not valid", fieldName};
}

}  // namespace zarvik
