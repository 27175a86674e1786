#pragma once

#include "zkstring.h"

namespace zarvik {

/// Texts by key, such as the messages of a catalogue.
class ResourceBundle {
 public:
  virtual ~ResourceBundle() = default;

  virtual zkstring getProperty(const zkstring& key) const = 0;  ///< empty for a key that is not there
  zkstring getProperty(const char* key) const { return getProperty(zkstring(key)); }
};

}  // namespace zarvik
