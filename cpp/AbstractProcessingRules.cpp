#include "AbstractProcessingRules.h"

#include "CustomInstances.h"
#include "IFieldProcessing.h"

namespace zarvik {

Object* AbstractProcessingRules::customFieldProcessing(const zkstring& className, const zkstring& argument,
                                                       DataObject* object) {
  return customInstance<IFieldProcessing>(fieldProcessings, className).process(argument, object);
}

}  // namespace zarvik
