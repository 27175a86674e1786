#pragma once

#include "IOutputContext.h"

namespace zarvik {

/// The collector that `TransformContext::createOutputContext` makes. Looking up by name walks over the devices.
class IOutputContextImpl : public IOutputContext {
 public:
  IOutputContextImpl() = default;
  IOutputContextImpl(const IOutputContextImpl&) = delete;
  IOutputContextImpl& operator=(const IOutputContextImpl&) = delete;
  ~IOutputContextImpl() override;

  ByteArrayOutputDevice* getOutputDevice(const zkstring& name) const override;
  int getOutputCount() const override { return static_cast<int>(devices.size()); }
  StringList getOutputNames() override;
  void clear() override;
  ByteArrayOutputDevice* createOutputDevice(const DeviceInfo& info) override;
  const std::vector<ByteArrayOutputDevice*>& getOutputDevices() const override { return devices; }

 private:
  /// Appends `device`, which is owned from here on; its name stays with the device alone.
  void bind(const zkstring& name, ByteArrayOutputDevice* device);

  std::vector<ByteArrayOutputDevice*> devices;  ///< owned
};

}  // namespace zarvik
