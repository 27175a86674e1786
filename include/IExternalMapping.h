#pragma once

#include "ICustomClass.h"

namespace zarvik {

/// A user's mapping between two external messages.
class IExternalMapping : public ICustomClass {};

}  // namespace zarvik
