#pragma once

#include "IPropertyMap.h"

namespace zarvik {

/// Accepts the names that match a pattern: "*" stands for any run of bytes, "?" for one byte, all else for itself.
///
///     WildcardFilter filter("order.*");
///     StringList names = properties->getPropertyNames(filter);
///
/// Odd on purpose: a literal directly behind a "?" matches nothing, so "a?c" does not accept "abc"; and a "?" with a
/// "*" behind it may stand for no byte, so "a??*" accepts "a". Bytes are compared as they are. The time is at most
/// that of one search for each literal; nothing is allocated.
class WildcardFilter : public IPropertyMap::PropertyNameFilter {
 public:
  WildcardFilter(const zkstring& pattern) : pattern(pattern) {}

  bool accept(const zkstring& name) override;

 private:
  zkstring pattern;
};

}  // namespace zarvik
