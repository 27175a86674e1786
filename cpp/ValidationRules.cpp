#include "ValidationRules.h"

namespace zarvik {

void ValidationRules::validate(DataObject* object, TransformContext& context) {
  inContext(context, [&] { validate(object); });
}

}  // namespace zarvik
