#include "Resources.h"

#include "Catalogues.h"

namespace zarvik {
namespace {

/// The catalogues come with the set itself, not by initialisers of their own: these might run late, or be left out of
/// a program that links the library statically and names nothing of theirs.
Resources withCatalogues() {
  Resources resources;
  resources.addResourceBundle("RuntimeResources", runtimeResources());
  resources.addResourceBundle("UniversalResources", universalResources());
  return resources;
}
}  // namespace

Resources& Resources::getDefaultResources() {
  static Resources& resources = *new Resources(withCatalogues());  // stays for those that fail at process end
  return resources;
}

void Resources::addResourceBundle(const zkstring& name, const ResourceBundle& bundle) {
  bundles.emplace(name, &bundle);
}

const ResourceBundle* Resources::getBundle(const zkstring& name) const {
  const auto found = bundles.find(name);
  return found == bundles.end() ? nullptr : found->second;
}

zkstring Resources::getProperty(const zkstring& key) {
  for (const auto& [name, bundle] : getDefaultResources().bundles) {
    zkstring value = bundle->getProperty(key);
    if (!value.empty()) return value;
  }
  return {};
}

zkstring Resources::getProperty(const char* bundleName, const char* key) {
  const ResourceBundle* const bundle = getDefaultResources().getBundle(zkstring(bundleName));
  return bundle == nullptr ? zkstring() : bundle->getProperty(key);
}

}  // namespace zarvik
