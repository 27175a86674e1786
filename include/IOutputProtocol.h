#pragma once

#include "IService.h"

namespace zarvik {

/// Makes the devices to which output goes. One object of each protocol serves everybody.
class IOutputProtocol : public IService {};

}  // namespace zarvik
