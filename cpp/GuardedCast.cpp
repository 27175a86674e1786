#include "GuardedCast.h"

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = ".\\include\\Exceptions";  // backslashes and all: what readers of traces look for
}  // namespace

void throwClassCast(const Object* object, const Class& wanted) {
  if (object == nullptr) throwFrom(here, ClassCastException("Cannot cast NULL to " + wanted.getName()));
  throwFrom(here, ClassCastException("Cannot cast " + Class(typeid(*object)).getName() + "* to " + wanted.getName()));
}

}  // namespace zarvik
