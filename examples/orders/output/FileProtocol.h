#pragma once

#include <memory>
#include <string>

#include "IOutputProtocol.h"
#include "OutputDevice.h"

namespace orders {

/// Writes each output to a file of its own in one folder.
///
/// A file is named after the input's origin and the output format, "messages.txt_12.NOXMLOut", with a line in place of
/// what does not belong in a file name; one that is there already is replaced.
class FileProtocol : public zarvik::IOutputProtocol {
 public:
  explicit FileProtocol(const std::string& folder) : folder(folder) {}

  /// The device lives until the next one is asked for. Throws TransformException when the file cannot be written, and
  /// so do the operations of the device.
  zarvik::OutputDevice* createDevice(zarvik::DeviceInfo& info, zarvik::TransformContext& context) override;

 private:
  std::string folder;
  std::unique_ptr<zarvik::OutputDevice> device;
};

}  // namespace orders
