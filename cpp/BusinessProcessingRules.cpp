#include "BusinessProcessingRules.h"

#include "CustomInstances.h"
#include "IFieldProcessing.h"
#include "Stamped.h"

namespace zarvik {

void BusinessProcessingRules::process(DataObject* object, TransformContext& context) {
  withErrorType(ExceptionObject::getERROR_TYPE_PROCESSING(),
                [&] { inContext(context, [&] { process0(object, context); }); });
}

void BusinessProcessingRules::process0(DataObject* object, TransformContext& /*context*/) { process(object); }

Object* BusinessProcessingRules::customFieldProcessing(const zkstring& className, const zkstring& argument,
                                                       DataObject* object) {
  return customInstance<IFieldProcessing>(fieldProcessings, className).process(argument, object);
}

}  // namespace zarvik
