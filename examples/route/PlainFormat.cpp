#include "PlainFormat.h"

#include "IOutputProtocol.h"
#include "InputSource.h"
#include "LookupContextFactory.h"
#include "OutputDevice.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {

void PlainFormat::processInput(InputSource& source, TransformContext& context) {
  const zkstring deviceName = context.getProperty(TransformContext::OUTPUT_DEVICE_PROPERTY);
  DeviceInfo info(deviceName, context.getProperty(TransformContext::INPUT_SOURCE_PROPERTY), zkstring::EMPTY);
  IOutputProtocol* const protocol = LookupContextFactory::getLookupContext()->lookupOutputProtocol(deviceName);
  OutputDevice* const device = protocol->createDevice(info, context);
  int length = 0;
  const char* const bytes = source.getAsBytes(length);
  device->write(bytes, length);
  device->close();
}

}  // namespace route
