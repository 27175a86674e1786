#include "orders/output/BytesOutput.h"

#include "DataObjectIO.h"
#include "OutputDevice.h"
#include "TransformContext.h"

using namespace zarvik;

namespace orders {

void BytesOutput::write(DataObject* input, TransformContext& context) {
  DeviceInfo info(context.getProperty(TransformContext::OUTPUT_DEVICE_PROPERTY),
                  context.getProperty(TransformContext::INPUT_SOURCE_PROPERTY),
                  context.getProperty(TransformContext::OUTPUT_FORMAT_PROPERTY));
  OutputDevice* const device = lookupContext->lookupOutputProtocol(info.getDeviceName())->createDevice(info, context);
  const Binary bytes = DataObjectIO::serialize(input);
  device->write(bytes.data(), static_cast<int>(bytes.length()));
  device->close();
}

}  // namespace orders
