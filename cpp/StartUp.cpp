#include "StartUp.h"

#include "CartridgeMessageIdentifier.h"

namespace zarvik {

void registerLibraryClasses() { registerClassCartridgeMessageIdentifier(); }

}  // namespace zarvik
