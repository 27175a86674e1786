#pragma once

#include "Object.h"

namespace zarvik {

/// Marks what the registry of a lookup context serves: messages, mappings, flows, formats, protocols.
class IService : public ObjectRef {};

}  // namespace zarvik
