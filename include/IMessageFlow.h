#pragma once

#include "IService.h"

namespace zarvik {

/// A sequence of steps on messages, entered by the host or by generated code.
class IMessageFlow : public IService {};

}  // namespace zarvik
