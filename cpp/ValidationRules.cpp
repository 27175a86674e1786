#include "ValidationRules.h"

namespace zarvik {

void ValidationRules::validate(DataObject* object, TransformContext& context) {
  run(context, [&] { validate(object); });
}

}  // namespace zarvik
