#pragma once

#include "IService.h"

namespace zarvik {

class DataObject;
class OutputDevice;
class TransformContext;

/// Writes normalised objects as messages of one format. One instance serves one thread at a time.
class IOutputFormat : public IService {
 public:
  virtual void setOutputDevice(OutputDevice* device) = 0;  ///< stays the caller's
  /// Writes `input`, which stays as it is, to a device of the protocol bound under the property "output.device".
  virtual void write(DataObject* input, TransformContext& context) = 0;
};

}  // namespace zarvik
