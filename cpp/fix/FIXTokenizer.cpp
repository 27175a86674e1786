#include "fix/FIXTokenizer.h"

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXTokenizer";
}

void FIXTokenizer::fail(const zkstring& message) const { throwFrom(here, FIXParsingException(message)); }

}  // namespace zarvik
