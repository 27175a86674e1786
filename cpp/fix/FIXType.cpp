#include "fix/FIXType.h"

#include "../TagValueBoolean.h"
#include "Exceptions.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXType";
}

bool FIXType::parseBoolean(const zkstring& text) { return readBoolean<FIXParsingException>(text, here); }

}  // namespace zarvik
