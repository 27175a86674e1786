#pragma once

#include "IOutputProtocol.h"

namespace zarvik {

/// Keeps output in memory, in the output context of the transform context, so that the caller collects it there.
///
///     registry->bind("memory", new ContextOutputProtocol);
///     context.createOutputContext();
///     context.setProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, "memory");
///     ... process messages ...
///     const char* text = context.getOutputContext()->getOutputDevice("memory")->getAsString();
class ContextOutputProtocol : public IOutputProtocol {
 public:
  /// One more device each time, also under the same name; it is the output context's. Throws TransformException when
  /// `context` has none.
  OutputDevice* createDevice(DeviceInfo& info, TransformContext& context) override;
};

}  // namespace zarvik
