#pragma once
#include "zkstring.h"
namespace zarvik {
class Binary : protected zkstring {};
}  // namespace zarvik
