#pragma once

#include "IService.h"

namespace zarvik {

class DeviceInfo;
class OutputDevice;
class TransformContext;

/// Makes the devices to which output goes. One object of each protocol is bound in the lookup context, directly and
/// not by a factory, and serves everybody.
class IOutputProtocol : public IService {
 public:
  /// A device for one output, which stays the protocol's to keep and to delete.
  virtual OutputDevice* createDevice(DeviceInfo& info, TransformContext& context) = 0;
};

/// Marks services that make devices by themselves; the library has none and asks for none.
class IOutputDeviceFactory : public IService {};

}  // namespace zarvik
