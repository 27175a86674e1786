#pragma once

#include "AbstractProcessingRules.h"

namespace zarvik {

/// The base of generated processings of an object in four steps. See AbstractValidationRules.
///
/// Errors leave `process` with the error type "Processing" unless they have one.
class ProcessingRules : public AbstractProcessingRules {
 public:
  virtual ~ProcessingRules() = default;

  void process(DataObject* object, TransformContext& context);  ///< all steps
  // One step each.
  void preprocess(DataObject* object, TransformContext& context);
  void validate(DataObject* object, TransformContext& context);
  void postprocess(DataObject* object, TransformContext& context);
  void checkNotNull(DataObject* object, TransformContext& context);

 protected:
  /// By default the steps preprocess, validate, postprocess, checkNotNull, in this order, each as a run of its own.
  virtual void process0(DataObject* object, TransformContext& context);
  // The generated steps.
  virtual void preprocess(DataObject* /*object*/) {}
  virtual void postprocess(DataObject* /*object*/) {}
  virtual void validate(DataObject* /*object*/) {}
  virtual void checkNotNull(DataObject* /*object*/) {}
};

}  // namespace zarvik
