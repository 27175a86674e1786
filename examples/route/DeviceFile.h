#pragma once

#include <cstdio>
#include <string>

#include "IOutputProtocol.h"
#include "OutputDevice.h"

namespace route {

/// One file for all that goes to a device, an output a line.
///
/// The file is made anew at the first output. Failures to write are std::system_error, which no part of the library
/// takes for an error of the message: they end the host.
class DeviceFile : public zarvik::IOutputProtocol {
 public:
  explicit DeviceFile(const std::string& name) : name(name), device(*this) {}
  ~DeviceFile() override;

  /// Always the same device, since nobody writes two outputs at a time.
  zarvik::OutputDevice* createDevice(zarvik::DeviceInfo& info, zarvik::TransformContext& context) override;

  long getOutputs() const { return outputs; }
  void flush();

 private:
  class Device : public zarvik::AbstractOutputDevice {
   public:
    explicit Device(DeviceFile& file) : AbstractOutputDevice({"", "", ""}), file(file) {}
    void write(const char* bytes, int count) override { file.write(bytes, static_cast<std::size_t>(count)); }
    void close() override { file.write("\n", 1); }

   private:
    DeviceFile& file;
  };

  void write(const char* bytes, std::size_t count);

  std::string name;
  std::FILE* file = nullptr;
  long outputs = 0;
  Device device;
};

}  // namespace route
