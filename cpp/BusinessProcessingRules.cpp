#include "BusinessProcessingRules.h"

#include "Stamped.h"

namespace zarvik {

void BusinessProcessingRules::process(DataObject* object, TransformContext& context) {
  withErrorType(ExceptionObject::getERROR_TYPE_PROCESSING(),
                [&] { inContext(context, [&] { process0(object, context); }); });
}

void BusinessProcessingRules::process0(DataObject* object, TransformContext& /*context*/) { process(object); }

}  // namespace zarvik
