#include "orders/output/FileProtocol.h"

#include <fstream>

#include "Exceptions.h"
#include "ThrowFrom.h"

using namespace zarvik;

namespace orders {
namespace {

constexpr char here[] = "examples/orders/output/FileProtocol";

class FileDevice : public AbstractOutputDevice {
 public:
  FileDevice(const DeviceInfo& info, const std::string& name)
      : AbstractOutputDevice(info), name(name), file(name, std::ios::binary) {
    check();
  }

  void write(const char* bytes, int count) override {
    file.write(bytes, count);
    check();
  }
  void close() override {
    file.close();
    check();
  }

 private:
  void check() const {
    if (!file) throwFrom(here, TransformException("Cannot write the file '" + zkstring(name.c_str()) + "'"));
  }

  std::string name;
  std::ofstream file;
};

std::string fileName(const DeviceInfo& info) {
  const zkstring wanted = info.getMessageIdentifier() + "." + info.getOutputFormatName();
  std::string name(wanted.data(), wanted.length());
  for (char& c : name) {
    const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    if (!plain && c != '.' && c != '-') c = '_';
  }
  return name;
}
}  // namespace

OutputDevice* FileProtocol::createDevice(DeviceInfo& info, TransformContext& /*context*/) {
  device = std::make_unique<FileDevice>(info, folder + "/" + fileName(info));
  return device.get();
}

}  // namespace orders
