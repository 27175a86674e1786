#pragma once

#include "Object.h"

namespace zarvik {

/// What a device is told about the output that it is made for. Any of the texts may be empty.
class DeviceInfo {
 public:
  DeviceInfo(const zkstring& deviceName, const zkstring& messageIdentifier, const zkstring& outputFormatName)
      : deviceName(deviceName), messageIdentifier(messageIdentifier), outputFormatName(outputFormatName) {}

  zkstring getDeviceName() const { return deviceName; }                ///< also the name of its protocol
  zkstring getMessageIdentifier() const { return messageIdentifier; }  ///< the origin of the input
  zkstring getOutputFormatName() const { return outputFormatName; }

 private:
  zkstring deviceName;
  zkstring messageIdentifier;
  zkstring outputFormatName;
};

/// Receives the bytes of one output. Belongs to the protocol that made it.
class OutputDevice : public Object {
 public:
  virtual void write(const char* bytes, int count) = 0;  ///< appends; `count` is not negative
  virtual void close() = 0;                              ///< nothing is written behind it
  virtual const DeviceInfo& getDeviceInfo() const = 0;
};

/// The base of devices: knows what output it was made for.
class AbstractOutputDevice : public OutputDevice {
 public:
  explicit AbstractOutputDevice(const DeviceInfo& info) : deviceInfo(info) {}

  const DeviceInfo& getDeviceInfo() const override { return deviceInfo; }

 private:
  DeviceInfo deviceInfo;
};

}  // namespace zarvik
