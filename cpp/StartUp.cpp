#include "StartUp.h"

#include "CartridgeMessageIdentifier.h"
#include "fix/FIXMessageIdentifier.h"
#include "siaccanonical/SIACCanonicalMessageIdentifier.h"

namespace zarvik {

void registerLibraryClasses() {
  registerClassFIXMessageIdentifier();
  registerClassSIACCanonicalMessageIdentifier();
  registerClassCartridgeMessageIdentifier();
}

}  // namespace zarvik
