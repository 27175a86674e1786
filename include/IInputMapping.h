#pragma once

#include "ICustomClass.h"

namespace zarvik {

/// A user's mapping of an external message to a normalised object.
class IInputMapping : public ICustomClass {};

}  // namespace zarvik
