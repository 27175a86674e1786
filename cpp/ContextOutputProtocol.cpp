#include "ContextOutputProtocol.h"

#include "ByteArrayOutputDevice.h"
#include "TransformContext.h"

namespace zarvik {

OutputDevice* ContextOutputProtocol::createDevice(DeviceInfo& info, TransformContext& context) {
  return context.getOutputContext()->createOutputDevice(info);
}

}  // namespace zarvik
