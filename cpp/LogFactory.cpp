#include "LogFactory.h"

#include "SimpleLogger.h"

namespace zarvik {
namespace {

constexpr unsigned int notFound = ~0U;
}  // namespace

Logger LogFactory::getLog(const zkstring& name) {
  if (name.empty()) return getRoot();
  SimpleLogger* current = SimpleLogger::getLogger(nullptr, zkstring::EMPTY);
  zkstring rest = name;
  for (unsigned int dot = rest.find('.'); dot != notFound; dot = rest.find('.')) {
    current = SimpleLogger::getLogger(current, rest.substr(0, dot));
    rest = rest.substr(dot + 1);
  }
  return SimpleLogger::getLogger(current, rest);
}

Logger LogFactory::getRoot() { return SimpleLogger::getLogger(nullptr, zkstring::EMPTY); }

}  // namespace zarvik
