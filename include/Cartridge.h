#pragma once

namespace zarvik {

/// What the generated code of one project is called as a whole. It has no state: a cartridge is what it binds in the
/// lookup context and registers with UserClassManager.
class Cartridge {};

}  // namespace zarvik
