#include "GuardedCast.h"

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = ".\\include\\Exceptions";  // backslashes and all: what readers of traces look for
}  // namespace

void throwClassCast(const std::type_info* found, const Class& wanted) {
  if (found == nullptr) throwFrom(here, ClassCastException("Cannot cast NULL to " + wanted.getName()));
  throwFrom(here, ClassCastException("Cannot cast " + Class(*found).getName() + "* to " + wanted.getName()));
}

}  // namespace zarvik
