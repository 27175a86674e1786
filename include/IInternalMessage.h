#pragma once

#include "IMessage.h"

namespace zarvik {

/// A message in normalised form, also called a business transaction, with its rules and triggers.
class IInternalMessage : public IMessage {};

}  // namespace zarvik
