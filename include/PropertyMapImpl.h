#pragma once

#include "IPropertyMap.h"
#include "PropertyMapForwarder.h"

namespace zarvik {

/// The store of properties: a vector of names and values, without an index. Allocates nothing while it is empty.
class PropertyMapImpl : public IPropertyMap2 {
 public:
  PropertyMapImpl() = default;
  PropertyMapImpl(const PropertyMapImpl&) = delete;  // values that are not counted have one owner
  PropertyMapImpl& operator=(const PropertyMapImpl&) = delete;
  ~PropertyMapImpl() override;

  Object* getProperty(const zkstring& name, Object* defaultValue) override;
  Object* getProperty(const zkstring& name) override;
  void setProperty(const zkstring& name, Object* value) override;
  void removeProperty(const zkstring& name) override;
  bool hasProperty(const zkstring& name) override;
  __int64 getLongProperty(const zkstring& name, __int64 defaultValue) override;
  void setLongProperty(const zkstring& name, __int64 value) override;
  bool getBooleanProperty(const zkstring& name, bool defaultValue) override;
  void setBooleanProperty(const zkstring& name, bool value) override;
  int getIntProperty(const zkstring& name, int defaultValue) override;
  void setIntProperty(const zkstring& name, int value) override;
  double getDoubleProperty(const zkstring& name, double defaultValue) override;
  void setDoubleProperty(const zkstring& name, double value) override;
  float getFloatProperty(const zkstring& name, float defaultValue) override;
  void setFloatProperty(const zkstring& name, float value) override;
  zkstring getStringProperty(const zkstring& name, const zkstring& defaultValue) override;
  void setStringProperty(const zkstring& name, const zkstring& value) override;
  DateTime getDateProperty(const zkstring& name, const DateTime& defaultValue) override;
  void setDateProperty(const zkstring& name, const DateTime& value) override;
  StringList getPropertyNames(PropertyNameFilter& filter) override;
  StringList getPropertyNames() override;
  int getPropertyCount() override { return size(); }
  void clearProperties() override { entries.clear(); }
  SmartPtr<IPropertyMap> getProperties(const zkstring& prefix) override;
  void putProperties(IPropertyMap* source) override;
  std::vector<EntryImpl> getEntries(const zkstring& prefix) override;
  void clear(const zkstring& prefix) override;
  StringList getNames(const zkstring& prefix) override;

  int size() { return static_cast<int>(entries.size()); }
  int getEntryIndex(const zkstring& name);  ///< -1 for a missing name
  EntryImpl getEntry(int index);            ///< throws std::out_of_range "invalid vector<T> subscript"
  /// Appends, even if the name is there already; takes over one reference of the value.
  void addEntry(EntryImpl entry) { entries.push_back(std::move(entry)); }
  static int hashCode(const zkstring& key) { return EntryImpl::hashCode(key); }

  // What the typed getters make of a value (may be null).
  static int toValue(Object* value, int defaultValue);
  static __int64 toValue(Object* value, __int64 defaultValue);
  static float toValue(Object* value, float defaultValue);
  static double toValue(Object* value, double defaultValue);
  static bool toValue(Object* value, bool defaultValue);
  static DateTime toValue(Object* value, const DateTime& defaultValue);

 private:
  std::vector<EntryImpl> entries;
};

/// A view of the names of a map that begin with a prefix, shown without it. `getProperties` makes it.
class PropertyMapSubset : public PropertyMapForwarder<PropertyMapSubset, IPropertyMap2> {
 public:
  /// `prefix` ends with the dot.
  PropertyMapSubset(IPropertyMap2* properties, const zkstring& prefix) : properties(properties), prefix(prefix) {}

  float getFloatProperty(const zkstring& name, float defaultValue) override;
  void setFloatProperty(const zkstring& name, float value) override;
  /// Odd on purpose: the filter sees full names, and those that it rejects stay in the list, in full.
  StringList getPropertyNames(PropertyNameFilter& filter) override;
  StringList getPropertyNames() override { return getNames({}); }
  int getPropertyCount() override;
  void clearProperties() override { properties->clear(prefix); }
  SmartPtr<IPropertyMap> getProperties(const zkstring& below) override;
  void putProperties(IPropertyMap* source) override;
  std::vector<EntryImpl> getEntries(const zkstring& below) override { return properties->getEntries(prefix + below); }
  void clear(const zkstring& below) override { properties->clear(prefix + below); }
  StringList getNames(const zkstring& below) override;

 private:
  friend class PropertyMapForwarder<PropertyMapSubset, IPropertyMap2>;
  IPropertyMap2& store() { return *properties; }
  zkstring nameOf(const zkstring& name) const { return prefix + name; }

  SmartPtr<IPropertyMap2> properties;
  zkstring prefix;
};

}  // namespace zarvik
