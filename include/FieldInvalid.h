#pragma once

#include "Exceptions.h"

namespace zarvik {

/// The error of a field that breaks the rule `validationName`: "Validation '<rule>' failed. Field '<field>' is not
/// valid", with the field's name.
FieldValidationException fieldInvalid(const zkstring& validationName, const zkstring& fieldName);

}  // namespace zarvik
