#include "NormalizedObjectValidationRules.h"

#include "CustomInstances.h"
#include "IFieldValidation.h"

namespace zarvik {

bool NormalizedObjectValidationRules::customValidation(const zkstring& className, Object* value,
                                                       const zkstring& argument, DataObject* object) {
  return customInstance<IFieldValidation>(fieldValidations, className).validate(argument, value, object);
}

}  // namespace zarvik
