#pragma once

#include <vector>

#include "Object.h"
#include "SmartPtr.h"
#include "VList.h"
#include "date/DateTime.h"

namespace zarvik {

/// Objects by name, in the order in which the names were first set: what raw messages carry for the host and formulas.
///
/// Names may be dotted, and `getProperties` gives a view of the names below one. Maps are short: names are found by
/// walking them. One thread at a time.
///
/// Getters with a default never fail for a missing name or a value of another kind, but give the default. A number or
/// a truth value kept as text is read by `Parsing`, which throws for a text that it cannot read. What is handed out as
/// `Object*` stays the map's own.
///
/// A map holds one reference on each value. `removeProperty` and the end of the map give it up; a value that is
/// replaced or cleared away keeps it, so that it stays alive: whoever took it out of the map before then owns it.
class IPropertyMap : public ObjectRef {
 public:
  class Entry;
  class EntryImpl;
  class PropertyNameFilter;

  virtual Object* getProperty(const zkstring& name, Object* defaultValue) = 0;
  virtual Object* getProperty(const zkstring& name) = 0;  ///< null for a missing name
  /// Takes one reference of `value`, and owns one that is not counted; null removes the name. A name that is there
  /// keeps its place.
  virtual void setProperty(const zkstring& name, Object* value) = 0;
  virtual void removeProperty(const zkstring& name) = 0;  ///< ignores unknown names
  virtual bool hasProperty(const zkstring& name) = 0;
  virtual __int64 getLongProperty(const zkstring& name, __int64 defaultValue) = 0;
  virtual void setLongProperty(const zkstring& name, __int64 value) = 0;
  virtual bool getBooleanProperty(const zkstring& name, bool defaultValue) = 0;  ///< a number: whether it is not 0
  virtual void setBooleanProperty(const zkstring& name, bool value) = 0;
  virtual int getIntProperty(const zkstring& name, int defaultValue) = 0;
  virtual void setIntProperty(const zkstring& name, int value) = 0;
  virtual double getDoubleProperty(const zkstring& name, double defaultValue) = 0;
  virtual void setDoubleProperty(const zkstring& name, double value) = 0;
  virtual float getFloatProperty(const zkstring& name, float defaultValue) = 0;
  virtual void setFloatProperty(const zkstring& name, float value) = 0;
  /// The text form of the value, whatever it is.
  virtual zkstring getStringProperty(const zkstring& name, const zkstring& defaultValue) = 0;
  virtual void setStringProperty(const zkstring& name, const zkstring& value) = 0;
  virtual DateTime getDateProperty(const zkstring& name, const DateTime& defaultValue) = 0;  ///< of a DateObject only
  virtual void setDateProperty(const zkstring& name, const DateTime& value) = 0;
  virtual StringList getPropertyNames(PropertyNameFilter& filter) = 0;  ///< those that the filter accepts
  virtual StringList getPropertyNames() = 0;
  virtual int getPropertyCount() = 0;
  virtual void clearProperties() = 0;
  /// A view of the names that begin with `prefix` and a dot, under what follows the dot. It keeps this map alive, and
  /// changes through it are made here; so this map lives on the heap.
  virtual SmartPtr<IPropertyMap> getProperties(const zkstring& prefix) = 0;
  /// Sets all properties of `source`: the same object if it is counted, else a clone of it.
  virtual void putProperties(IPropertyMap* source) = 0;
};

/// One property.
class IPropertyMap::Entry {
 public:
  virtual ~Entry() = default;
  virtual zkstring getName() const = 0;
  virtual Object* getValue() const = 0;
};

/// A name and its value, with no reference on the value.
class IPropertyMap::EntryImpl : public IPropertyMap::Entry {
 public:
  EntryImpl(const zkstring& key, Object* value) : keyHashCode(hashCode(key)), key(key), value(value) {}

  const zkstring& getKey() const { return key; }
  zkstring getName() const override { return key; }
  Object* getValue() const override { return value; }
  int getKeyHashCode() const { return keyHashCode; }
  static int hashCode(const zkstring& /*key*/) { return 0; }  ///< 0 for every key
  zkstring toString() const;                                  ///< "<key>=<text of the value>"

 private:
  int keyHashCode;
  zkstring key;
  Object* value;
};

/// Chooses among the names of a map.
class IPropertyMap::PropertyNameFilter {
 public:
  virtual ~PropertyNameFilter() = default;
  virtual bool accept(const zkstring& name) = 0;
};

/// A map that can be worked on by plain prefixes of its names, to which no dot is added.
class IPropertyMap2 : public IPropertyMap {
 public:
  virtual std::vector<EntryImpl> getEntries(const zkstring& prefix) = 0;  ///< with their full names
  virtual void clear(const zkstring& prefix) = 0;
  virtual StringList getNames(const zkstring& prefix) = 0;
};

}  // namespace zarvik
