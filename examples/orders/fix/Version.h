#pragma once

#include "zkstring.h"

namespace orders {

/// The versions of FIX that the cartridge speaks.
enum class Version { FIX42, FIX44 };

inline zarvik::zkstring beginString(Version version) {
  return version == Version::FIX42 ? zarvik::zkstringliteral("FIX.4.2") : zarvik::zkstringliteral("FIX.4.4");
}

}  // namespace orders
