#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {

/// The rules of one kind that a message has, by name; they stay their maker's. A message has few, so that going through
/// them, at a comparison of lengths or of short texts each, is the quickest way to one.
template <class Rules>
class NamedRules {
 public:
  /// The first of two with one name stays.
  void add(const zkstring& name, Rules* rules) {
    if (find(name) == nullptr) entries.emplace_back(name, rules);
  }

  Rules* find(const zkstring& name) const {  ///< null if there is none
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.first == name; });
    return found != entries.end() ? found->second : nullptr;
  }

  /// Throws TransformRuntimeException "<kind> by name '<name>' is not defined for the message" if there is none.
  Rules* get(const zkstring& name, const char* kind, const char* source, CallSite site = CallSite::current()) const {
    if (Rules* const rules = find(name)) return rules;
    throwFrom(source, TransformRuntimeException(kind + (" by name '" + name + "' is not defined for the message")),
              site);
  }

 private:
  std::vector<std::pair<zkstring, Rules*>> entries;
};

}  // namespace zarvik
