#pragma once

#include "ThrowFrom.h"
#include "zkstring.h"

namespace zarvik {

/// The boolean of a tag=value format: the first byte tells, Y or N, and the others are not looked at. All other texts
/// throw Error, with `source` as its origin.
template <class Error>
bool readBoolean(const zkstring& text, const char* source) {
  if (text.empty()) throwFrom(source, Error("Illegal boolean value, it can't be empty"));
  if (text[0] == 'Y') return true;
  if (text[0] == 'N') return false;
  throwFrom(source, Error("Illegal boolean value " + text));
}

}  // namespace zarvik
