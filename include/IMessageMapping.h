#pragma once

#include "IService.h"

namespace zarvik {

/// Maps messages to other messages.
class IMessageMapping : public IService {};

}  // namespace zarvik
