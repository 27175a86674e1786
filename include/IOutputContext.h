#pragma once

#include <vector>

#include "IService.h"
#include "VList.h"

namespace zarvik {

class ByteArrayOutputDevice;
class DeviceInfo;

/// Collects output in memory for one transform context, one device for each output. The devices are its own, and live
/// until `clear` or its end.
class IOutputContext : public IService {
 public:
  /// The first device of the name; null if there is none.
  virtual ByteArrayOutputDevice* getOutputDevice(const zkstring& name) const = 0;
  virtual int getOutputCount() const = 0;
  virtual StringList getOutputNames() = 0;  ///< of all devices in the order in which they were made
  virtual void clear() = 0;                 ///< deletes all devices
  virtual ByteArrayOutputDevice* createOutputDevice(const DeviceInfo& info) = 0;
  virtual const std::vector<ByteArrayOutputDevice*>& getOutputDevices() const = 0;  ///< in the same order
};

}  // namespace zarvik
