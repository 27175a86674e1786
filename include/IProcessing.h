#pragma once

#include "ICustomClass.h"

namespace zarvik {

/// A user's processing of a whole object.
class IProcessing : public ICustomClass {};

}  // namespace zarvik
