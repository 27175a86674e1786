#pragma once

#include <string_view>

#include "Frame.h"
#include "GenericDataObject.h"

namespace route {

/// The header of a FIX message as a record: its format, version and type, and who sent it to whom.
class FixHeader : public zarvik::GenericDataObject {
 public:
  /// Copies what it keeps of `message`, whose frame is known to be sound.
  FixHeader(std::string_view message, const Frame& frame);
};

}  // namespace route
