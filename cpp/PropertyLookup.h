#pragma once

#include "Properties.h"

namespace zarvik {

/// The value of `name` in `properties`, valid until they change; null if it is absent.
///
/// Properties are a handful, and most of their names differ in length: looking through them is then quicker than the
/// ordered search, which is left to larger maps.
inline const zkstring* findProperty(const Properties& properties, const zkstring& name) {
  constexpr std::size_t handful = 8;
  if (properties.size() > handful) {
    const auto entry = properties.find(name);
    return entry != properties.end() ? &entry->second : nullptr;
  }
  for (const auto& [key, value] : properties) {
    if (key == name) return &value;
  }
  return nullptr;
}

}  // namespace zarvik
