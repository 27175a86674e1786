#pragma once

#include "IService.h"

namespace zarvik {

/// Writes normalised objects as messages of one format.
class IOutputFormat : public IService {};

}  // namespace zarvik
