#pragma once

#include "AbstractValidationRules.h"

namespace zarvik {

/// The base of generated validations of a normalised object. See AbstractValidationRules.
class ValidationRules : public AbstractValidationRules {
 public:
  virtual ~ValidationRules() = default;

  /// Runs the step. Its errors leave as they are: unlike other rules these set no error type.
  void validate(DataObject* object, TransformContext& context);
  /// The handler stays the caller's and is used until the next one is set.
  void setExceptionHandler(ExceptionHandler* handler) { exceptionHandler = handler; }

 protected:
  virtual void validate(DataObject* object) = 0;  ///< the generated step

  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;
};

}  // namespace zarvik
