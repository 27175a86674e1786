#include "Class.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace zarvik {

zkstring Class::getName() const {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type->name(), nullptr, nullptr, &status),
                                                         &std::free);
  return zkstring(status == 0 ? name.get() : type->name());
}

}  // namespace zarvik
