#pragma once

#include "IMessage.h"

namespace zarvik {

/// A message in the form of an outside format.
class IExternalMessage : public IMessage {};

}  // namespace zarvik
