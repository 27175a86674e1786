#include "Show.h"

#include <algorithm>
#include <cstdio>

#include "ByteArrayOutputDevice.h"
#include "DataObject.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {

std::string readable(std::string_view bytes) {
  std::string text(bytes);
  while (text.ends_with('\n')) text.pop_back();
  for (char& c : text) {
    if (c == '\x01') {
      c = '|';
    } else if (static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t') {
      c = '?';
    }
  }
  return text;
}

void ShownOrder::handleNormalizedObject(DataObject* object, TransformContext& context) {
  BusinessTransactionWrapper::handleNormalizedObject(object, context);
  context.setProperty(XML_PROPERTY, object->toXMLString());
}

void showOutputs(TransformContext& context) {
  const zkstring xml = context.getProperty(ShownOrder::XML_PROPERTY);
  if (!xml.empty()) std::printf("Normalised:\n%s\n", readable({xml.data(), xml.length()}).c_str());
  for (ByteArrayOutputDevice* const device : context.getOutputContext()->getOutputDevices()) {
    const DeviceInfo& info = device->getDeviceInfo();
    const zkstring format = info.getOutputFormatName();
    int length = 0;
    const char* const bytes = device->getAsBytes(length);
    std::printf("Written to %s%s%s:\n%s\n", info.getDeviceName().c_str(), format.empty() ? "" : " as ", format.c_str(),
                readable({bytes, static_cast<std::size_t>(length)}).c_str());
  }
}

}  // namespace route
