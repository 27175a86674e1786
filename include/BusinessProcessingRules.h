#pragma once

#include "AbstractProcessingRules.h"

namespace zarvik {

/// The base of generated processings of a normalised object in one step. See AbstractValidationRules.
///
/// Errors leave `process` with the error type "Processing" unless they have one.
class BusinessProcessingRules : public AbstractProcessingRules {
 public:
  virtual ~BusinessProcessingRules() = default;

  void process(DataObject* object, TransformContext& context);

 protected:
  virtual void process(DataObject* /*object*/) {}                        ///< the generated step
  virtual void process0(DataObject* object, TransformContext& context);  ///< by default the generated step
};

}  // namespace zarvik
