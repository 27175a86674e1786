#pragma once

#include "AbstractValidationRules.h"

namespace zarvik {

/// The base of generated processings of a normalised object in one step. See AbstractValidationRules.
///
/// Errors leave `process` with the error type "Processing" unless they have one.
class BusinessProcessingRules : public AbstractValidationRules {
 public:
  virtual ~BusinessProcessingRules() = default;

  void process(DataObject* object, TransformContext& context);
  /// The handler stays the caller's and is used until the next one is set.
  void setExceptionHandler(ExceptionHandler* handler) { exceptionHandler = handler; }

 protected:
  virtual void process(DataObject* /*object*/) {}                        ///< the generated step
  virtual void process0(DataObject* object, TransformContext& context);  ///< by default the generated step

  /// The value that the user's processing `className` gives for a field of `object`, which is the caller's.
  Object* customFieldProcessing(const zkstring& className, const zkstring& argument, DataObject* object);

 private:
  SmallStringMap fieldProcessings;  ///< of IFieldProcessing, by class name

 protected:
  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;
};

}  // namespace zarvik
