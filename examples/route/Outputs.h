#pragma once

#include <map>
#include <string>

#include "DeviceFile.h"
#include "SmartPtr.h"

namespace route {

/// Where the outputs go: to files in a folder, or into the memory of the message's context.
class Outputs {
 public:
  /// Makes `folder` if it is not there and installs the cartridge for it; an empty name stands for memory. Once per
  /// process.
  explicit Outputs(const std::string& folder);

  /// How many outputs went to each device that has files here. Throws std::system_error if not all of them could be
  /// written.
  std::map<std::string, long> finish();

 private:
  std::map<std::string, zarvik::SmartPtr<DeviceFile>> files;  ///< by device
};

}  // namespace route
