#pragma once

#include "IPropertyMap.h"

namespace zarvik {

/// Gives a property map the operations that it only passes on to another one: all but the two of `float` and the
/// filtered names.
///
/// `Self` derives from this, and this from `Interface`. `Self` supplies `store()`, the other map, and `nameOf(name)`,
/// the name there.
template <class Self, class Interface>
class PropertyMapForwarder : public Interface {
 public:
  Object* getProperty(const zkstring& name, Object* defaultValue) override {
    return to().getProperty(there(name), defaultValue);
  }
  Object* getProperty(const zkstring& name) override { return to().getProperty(there(name)); }
  void setProperty(const zkstring& name, Object* value) override { to().setProperty(there(name), value); }
  void removeProperty(const zkstring& name) override { to().removeProperty(there(name)); }
  bool hasProperty(const zkstring& name) override { return to().hasProperty(there(name)); }
  __int64 getLongProperty(const zkstring& name, __int64 defaultValue) override {
    return to().getLongProperty(there(name), defaultValue);
  }
  void setLongProperty(const zkstring& name, __int64 value) override { to().setLongProperty(there(name), value); }
  bool getBooleanProperty(const zkstring& name, bool defaultValue) override {
    return to().getBooleanProperty(there(name), defaultValue);
  }
  void setBooleanProperty(const zkstring& name, bool value) override { to().setBooleanProperty(there(name), value); }
  int getIntProperty(const zkstring& name, int defaultValue) override {
    return to().getIntProperty(there(name), defaultValue);
  }
  void setIntProperty(const zkstring& name, int value) override { to().setIntProperty(there(name), value); }
  double getDoubleProperty(const zkstring& name, double defaultValue) override {
    return to().getDoubleProperty(there(name), defaultValue);
  }
  void setDoubleProperty(const zkstring& name, double value) override { to().setDoubleProperty(there(name), value); }
  zkstring getStringProperty(const zkstring& name, const zkstring& defaultValue) override {
    return to().getStringProperty(there(name), defaultValue);
  }
  void setStringProperty(const zkstring& name, const zkstring& value) override {
    to().setStringProperty(there(name), value);
  }
  DateTime getDateProperty(const zkstring& name, const DateTime& defaultValue) override {
    return to().getDateProperty(there(name), defaultValue);
  }
  void setDateProperty(const zkstring& name, const DateTime& value) override {
    to().setDateProperty(there(name), value);
  }
  StringList getPropertyNames() override { return to().getPropertyNames(); }
  int getPropertyCount() override { return to().getPropertyCount(); }
  void clearProperties() override { to().clearProperties(); }
  SmartPtr<IPropertyMap> getProperties(const zkstring& prefix) override { return to().getProperties(prefix); }
  void putProperties(IPropertyMap* source) override { to().putProperties(source); }

 private:
  auto& to() { return static_cast<Self*>(this)->store(); }
  decltype(auto) there(const zkstring& name) { return static_cast<Self*>(this)->nameOf(name); }
};

}  // namespace zarvik
