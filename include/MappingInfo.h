#pragma once

#include "Object.h"

namespace zarvik {

/// What a mapping tells of itself: nothing. Cartridges derive from it.
class MappingInfo : public Object {
 public:
  MappingInfo() = default;
  MappingInfo(const MappingInfo& other) = default;
};

}  // namespace zarvik
