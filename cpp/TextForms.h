#pragma once

#include "Conversion.h"

namespace zarvik {

/// The text forms of Conversion.h for whoever writes on behind them: no terminator, and the end is given. They take as
/// many bytes at most.
char* putText(char* out, int value);
char* putText(char* out, __int64 value);
char* putText(char* out, double value);

}  // namespace zarvik
