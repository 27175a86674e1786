#pragma once

#include "AbstractValidationRules.h"

namespace zarvik {

/// What processing rules have besides: the users' computations of fields, and the handler of the run's errors.
class AbstractProcessingRules : public AbstractValidationRules {
 public:
  /// The handler stays the caller's and is used until the next one is set.
  void setExceptionHandler(ExceptionHandler* handler) { exceptionHandler = handler; }

 protected:
  AbstractProcessingRules() = default;
  ~AbstractProcessingRules() = default;

  /// The value that the user's processing `className` gives for a field of `object`, which is the caller's.
  Object* customFieldProcessing(const zkstring& className, const zkstring& argument, DataObject* object);

  SmallStringMap fieldProcessings;  ///< of IFieldProcessing, by class name
  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;
};

}  // namespace zarvik
