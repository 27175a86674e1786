#pragma once

#include "AbstractValidationRules.h"

namespace zarvik {

/// The base of generated validations of an external message, part by part. See AbstractValidationRules.
///
/// Errors leave with the error type "Validation" unless they have one.
class FieldsValidationRules : public AbstractValidationRules {
 public:
  virtual ~FieldsValidationRules() = default;

  void validateHeader(DataObject* header, TransformContext& context);
  void validateData(DataObject* header, DataObject* data, TransformContext& context);
  void validateTrailer(DataObject* trailer, TransformContext& context);
  /// The handler stays the caller's and is used until the next one is set.
  void setExceptionHandler(ExceptionHandler* handler) { exceptionHandler = handler; }

 protected:
  // The generated steps. A part that the message lacks is null.
  virtual void validateData0(DataObject* header, DataObject* data) = 0;
  virtual void validateHeader0(DataObject* header) = 0;
  virtual void validateTrailer0(DataObject* trailer) = 0;

  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;

 private:
  template <class Step>
  void validatePart(TransformContext& context, Step step);
};

}  // namespace zarvik
