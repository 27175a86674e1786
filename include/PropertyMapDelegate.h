#pragma once

#include "PropertyMapForwarder.h"

namespace zarvik {

/// Makes a class a property map by a store of its own, which comes into being when it is first used. The subclass
/// supplies the operations of `float` and the filtered names.
class PropertyMapDelegate : public PropertyMapForwarder<PropertyMapDelegate, IPropertyMap> {
 public:
  using PropertyMapForwarder::getProperties;
  SmartPtr<IPropertyMap> getProperties();  ///< the store

 private:
  friend class PropertyMapForwarder<PropertyMapDelegate, IPropertyMap>;
  IPropertyMap& store();
  const zkstring& nameOf(const zkstring& name) const { return name; }

  SmartPtr<IPropertyMap> properties;
};

}  // namespace zarvik
