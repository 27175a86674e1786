#include "IOutputContextImpl.h"

#include <algorithm>

#include "ByteArrayOutputDevice.h"

namespace zarvik {

IOutputContextImpl::~IOutputContextImpl() { IOutputContextImpl::clear(); }

ByteArrayOutputDevice* IOutputContextImpl::getOutputDevice(const zkstring& name) const {
  const auto named = [&name](ByteArrayOutputDevice* device) { return device->getDeviceInfo().getDeviceName() == name; };
  const auto found = std::find_if(devices.begin(), devices.end(), named);
  return found != devices.end() ? *found : nullptr;
}

StringList IOutputContextImpl::getOutputNames() {
  StringList names;
  for (const ByteArrayOutputDevice* device : devices) names.add(device->getDeviceInfo().getDeviceName());
  return names;
}

void IOutputContextImpl::clear() {
  for (const ByteArrayOutputDevice* device : devices) delete device;
  devices.clear();
}

ByteArrayOutputDevice* IOutputContextImpl::createOutputDevice(const DeviceInfo& info) {
  auto device = std::make_unique<ByteArrayOutputDevice>(info);
  bind(info.getDeviceName(), device.get());
  return device.release();
}

void IOutputContextImpl::bind(const zkstring& /*name*/, ByteArrayOutputDevice* device) { devices.push_back(device); }

}  // namespace zarvik
