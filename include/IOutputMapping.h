#pragma once

#include "ICustomClass.h"

namespace zarvik {

/// A user's mapping of a normalised object to an external message.
class IOutputMapping : public ICustomClass {};

}  // namespace zarvik
