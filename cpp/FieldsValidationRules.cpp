#include "FieldsValidationRules.h"

#include "DataObject.h"
#include "Stamped.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/FieldsValidationRules";

/// The qualified name of a field in the error of the rule `validationName`; empty without an object.
zkstring invalidFieldName(const zkstring& validationName, DataObject* object, int fieldIndex) {
  if (object == nullptr) return {};
  try {
    return object->getQualifiedName(fieldIndex);
  } catch (const Exception&) {
    throwFrom(here, FieldValidationException("Validation '" + validationName + "' failed. Unrecognized Field.",
                                             zkstring::EMPTY));
  }
}
}  // namespace

template <class Step>
void FieldsValidationRules::validatePart(TransformContext& context, Step step) {
  withErrorType(ExceptionObject::getERROR_TYPE_VALIDATION(), [&] { inContext(context, step); });
}

void FieldsValidationRules::validateHeader(DataObject* header, TransformContext& context) {
  validatePart(context, [&] { validateHeader0(header); });
}

void FieldsValidationRules::validateData(DataObject* header, DataObject* data, TransformContext& context) {
  validatePart(context, [&] { validateData0(header, data); });
}

void FieldsValidationRules::validateTrailer(DataObject* trailer, TransformContext& context) {
  validatePart(context, [&] { validateTrailer0(trailer); });
}

// The errors of single fields stand here, under the name that they record, although all rules throw them.

void AbstractValidationRules::throwFieldInvalid(const zkstring& message, const zkstring& validationName,
                                                const zkstring& errorCode, const zkstring& severity, bool cascadable,
                                                DataObject* object, int fieldIndex) const {
  const zkstring name = invalidFieldName(validationName, object, fieldIndex);
  FieldValidationException error = fieldInvalid(validationName, name);
  if (!message.empty()) error.setMessage(message);
  throwFieldInvalid(error, error.getMessage(), validationName, errorCode, severity, cascadable, object, fieldIndex);
}

void AbstractValidationRules::throwFieldInvalid(const zkstring& validationName, const zkstring& errorCode,
                                                const zkstring& severity, bool cascadable, DataObject* object,
                                                int fieldIndex) const {
  throwFieldInvalid(zkstring::EMPTY, validationName, errorCode, severity, cascadable, object, fieldIndex);
}

void AbstractValidationRules::throwFieldInvalid(FieldValidationException& error, const zkstring& message,
                                                const zkstring& validationName, const zkstring& errorCode,
                                                const zkstring& severity, bool cascadable, DataObject* object,
                                                int fieldIndex) const {
  if (message.empty()) throwFieldInvalid(message, validationName, errorCode, severity, cascadable, object, fieldIndex);
  error.setErrorCode(errorCode);
  error.setSeverity(severity);
  error.setCascadable(cascadable);
  error.setInternalCode(validationName);
  error.setErrorType(ExceptionObject::getERROR_TYPE_VALIDATION());
  throwFrom(here, error);
}

void AbstractValidationRules::throwFieldInvalid(FieldValidationException& error, const zkstring& validationName,
                                                const zkstring& errorCode, const zkstring& severity, bool cascadable,
                                                DataObject* object, int fieldIndex) const {
  throwFieldInvalid(error, zkstring::EMPTY, validationName, errorCode, severity, cascadable, object, fieldIndex);
}

}  // namespace zarvik
