#include "DeviceFile.h"

#include <cerrno>
#include <system_error>

namespace route {

DeviceFile::~DeviceFile() {
  if (file != nullptr) std::fclose(file);
}

zarvik::OutputDevice* DeviceFile::createDevice(zarvik::DeviceInfo& /*info*/, zarvik::TransformContext& /*context*/) {
  ++outputs;
  return &device;
}

void DeviceFile::write(const char* bytes, std::size_t count) {
  if (file == nullptr) file = std::fopen(name.c_str(), "wb");
  if (file == nullptr || std::fwrite(bytes, 1, count, file) != count) {
    throw std::system_error(errno, std::generic_category(), "cannot write '" + name + "'");
  }
}

void DeviceFile::flush() {
  if (file != nullptr && std::fflush(file) != 0) {
    throw std::system_error(errno, std::generic_category(), "cannot write '" + name + "'");
  }
}

}  // namespace route
