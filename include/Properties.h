#pragma once

#include <map>

#include "zkstring.h"

namespace zarvik {

/// Named texts in the order of `zkstring` comparison. Setting a name that is present replaces its value.
using Properties = std::map<zkstring, zkstring>;

}  // namespace zarvik
