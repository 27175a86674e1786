#include "SimpleXMLOutputFormat.h"

#include "DataObject.h"
#include "OutputTarget.h"

namespace zarvik {

void SimpleXMLOutputFormat::write(DataObject* object, TransformContext& context) {
  OutputDevice* const device = OutputTarget(*lookupContext, context).createDevice();
  deliver(object->toXMLString(), *device);
}

}  // namespace zarvik
