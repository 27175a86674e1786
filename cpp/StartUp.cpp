#include "StartUp.h"

namespace zarvik {

void registerLibraryClasses() {}

}  // namespace zarvik
