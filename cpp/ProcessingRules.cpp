#include "ProcessingRules.h"

#include "Stamped.h"

namespace zarvik {

void ProcessingRules::process(DataObject* object, TransformContext& context) {
  withErrorType(ExceptionObject::getERROR_TYPE_PROCESSING(), [&] { process0(object, context); });
}

void ProcessingRules::preprocess(DataObject* object, TransformContext& context) {
  inContext(context, [&] { preprocess(object); });
}

void ProcessingRules::validate(DataObject* object, TransformContext& context) {
  inContext(context, [&] { validate(object); });
}

void ProcessingRules::postprocess(DataObject* object, TransformContext& context) {
  inContext(context, [&] { postprocess(object); });
}

void ProcessingRules::checkNotNull(DataObject* object, TransformContext& context) {
  inContext(context, [&] { checkNotNull(object); });
}

void ProcessingRules::process0(DataObject* object, TransformContext& context) {
  preprocess(object, context);
  validate(object, context);
  postprocess(object, context);
  checkNotNull(object, context);
}

}  // namespace zarvik
