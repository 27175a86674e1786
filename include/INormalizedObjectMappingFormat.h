#pragma once

#include "IService.h"

namespace zarvik {

/// Maps the normalised object of one internal message to that of another.
class INormalizedObjectMappingFormat : public IService {};

}  // namespace zarvik
