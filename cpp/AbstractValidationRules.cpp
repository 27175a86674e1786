#include "AbstractValidationRules.h"

#include "CustomInstances.h"
#include "IFieldValidation.h"
#include "IInvokable.h"

namespace zarvik {

Object* AbstractValidationRules::invokeCustomExternalClass(const zkstring& className, const ObjectList& arguments,
                                                           TransformContext& context) {
  return customInstance<IInvokable>(invokables, className).invoke(arguments, context);
}

bool AbstractValidationRules::customValidation(const zkstring& className, const Object* value, const zkstring& argument,
                                               DataObject* object) {
  return customInstance<IFieldValidation>(fieldValidations, className).validate(argument, value, object);
}

}  // namespace zarvik
