#include "PropertyResourceBundle.h"

namespace zarvik {

void PropertyResourceBundle::addProperty(const char* key, const char* value) {
  properties.emplace(zkstring::static_string(key), zkstring::static_string(value));
}

zkstring PropertyResourceBundle::getProperty(const zkstring& key) const {
  const auto found = properties.find(key);
  return found == properties.end() ? zkstring() : found->second;
}

}  // namespace zarvik
