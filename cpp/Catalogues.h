#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "PropertyResourceBundle.h"

namespace zarvik {

/// An error of a catalogue: its two keys, made by the compiler from the entry's name, and their values.
class CatalogueEntry {
 public:
  consteval CatalogueEntry(std::string_view name, const char* code, const char* message)
      : code(code), message(message) {
    writeKey(name, ".code", codeKey);
    writeKey(name, ".message", messageKey);
  }

  void addTo(PropertyResourceBundle& bundle) const {
    bundle.addProperty(codeKey, code);
    bundle.addProperty(messageKey, message);
  }

 private:
  using Key = char[16];  // "SRT100.message" and a terminator
  static consteval void writeKey(std::string_view name, std::string_view ending, Key& key) {
    std::copy(ending.begin(), ending.end(), std::copy(name.begin(), name.end(), key));
  }

  Key codeKey{};
  Key messageKey{};
  const char* code;
  const char* message;
};

inline PropertyResourceBundle bundleOf(std::span<const CatalogueEntry> entries) {
  PropertyResourceBundle bundle;
  for (const CatalogueEntry& entry : entries) entry.addTo(bundle);
  return bundle;
}

// The catalogues: made on first use, and never taken down, since errors may be built until the process ends.
const PropertyResourceBundle& runtimeResources();
const PropertyResourceBundle& universalResources();

}  // namespace zarvik
