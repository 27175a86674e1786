#pragma once

#include <map>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {

/// The rules of a message by name. Throws TransformRuntimeException "<kind> by name '<name>' is not defined for the
/// message".
template <class Rules>
Rules* rulesByName(const std::map<zkstring, Rules*>& rules, const zkstring& name, const char* kind, const char* source,
                   CallSite site = CallSite::current()) {
  if (const auto found = rules.find(name); found != rules.end()) return found->second;
  throwFrom(source, TransformRuntimeException(kind + (" by name '" + name + "' is not defined for the message")), site);
}

}  // namespace zarvik
