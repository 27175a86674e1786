#pragma once

#include "IService.h"

namespace zarvik {

/// A type of messages: makes, parses, validates and writes objects of it.
class IMessage : public IService {};

}  // namespace zarvik
