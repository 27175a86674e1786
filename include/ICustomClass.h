#pragma once

#include "Object.h"

namespace zarvik {

/// The root of the classes that users and generated code plug in by name: custom mappings, validations, processings,
/// functions and triggers. Registered by `UserClass`, made through `CustomClassSupport`.
class ICustomClass : public ObjectRef {};

}  // namespace zarvik
