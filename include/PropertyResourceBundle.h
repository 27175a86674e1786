#pragma once

#include "Properties.h"
#include "ResourceBundle.h"

namespace zarvik {

/// A resource bundle over constant texts.
class PropertyResourceBundle : public ResourceBundle {
 public:
  /// Both texts are kept as they stand, without a copy, and outlive the bundle and all strings taken from it. A key
  /// that is there keeps its first value.
  void addProperty(const char* key, const char* value);

  using ResourceBundle::getProperty;
  zkstring getProperty(const zkstring& key) const override;

 private:
  Properties properties;
};

}  // namespace zarvik
