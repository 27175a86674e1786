#pragma once

#include "ILookupContext.h"
#include "OutputDevice.h"
#include "TransformContext.h"

namespace zarvik {

/// Where an output goes, as the properties of its context say at the time.
class OutputTarget {
 public:
  /// Throws what the look-up of the protocol throws.
  OutputTarget(ILookupContext& lookupContext, TransformContext& context)
      : context(context),
        info(context.getProperty(TransformContext::OUTPUT_DEVICE_PROPERTY),
             context.getProperty(TransformContext::INPUT_SOURCE_PROPERTY),
             context.getProperty(TransformContext::OUTPUT_FORMAT_PROPERTY)),
        protocol(lookupContext.lookupOutputProtocol(info.getDeviceName())) {}

  OutputDevice* createDevice() { return protocol->createDevice(info, context); }  ///< the protocol's own

 private:
  TransformContext& context;
  DeviceInfo info;
  IOutputProtocol* protocol;
};

/// Gives `text` to `device` as all of its output. A device whose `write` throws is not closed.
inline void deliver(const zkstring& text, OutputDevice& device) {
  device.write(text.data(), static_cast<int>(text.length()));
  device.close();
}

}  // namespace zarvik
