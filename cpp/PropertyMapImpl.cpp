#include "PropertyMapImpl.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "Parsing.h"
#include "PropertyMapDelegate.h"
#include "WrapperObjects.h"

namespace zarvik {
namespace {

bool startsWith(const zkstring& text, const zkstring& prefix) {
  return text.length() >= prefix.length() && std::memcmp(text.data(), prefix.data(), prefix.length()) == 0;
}

/// `value` as a number: one taken from a number by `get`, or read from a text by `parse`.
template <class T>
T numberOf(Object* value, T defaultValue, T (NumberObject::*get)() const, T (*parse)(const zkstring&)) {
  if (const auto* const number = dynamic_cast<NumberObject*>(value)) return (number->*get)();
  if (const auto* const text = dynamic_cast<StringObject*>(value)) return parse(text->getValue());
  return defaultValue;
}

/// The object that a second map may keep: `value` itself if it is counted, else a clone.
Object* shareable(Object* value) {
  return value == nullptr || dynamic_cast<ObjectRef*>(value) != nullptr ? value : value->clone();
}

/// What `putProperties` of any map does.
void copyProperties(IPropertyMap* source, IPropertyMap& target) {
  for (const zkstring& name : source->getPropertyNames()) {
    target.setProperty(name, shareable(source->getProperty(name)));
  }
}
}  // namespace

zkstring IPropertyMap::EntryImpl::toString() const { return key + "=" + value->toString(); }

PropertyMapImpl::~PropertyMapImpl() {
  for (const EntryImpl& entry : entries) ObjectRef::releaseRef(entry.getValue());
}

Object* PropertyMapImpl::getProperty(const zkstring& name, Object* defaultValue) {
  Object* const value = getProperty(name);
  return value != nullptr ? value : defaultValue;
}

Object* PropertyMapImpl::getProperty(const zkstring& name) {
  const int index = getEntryIndex(name);
  return index >= 0 ? entries[static_cast<std::size_t>(index)].getValue() : nullptr;
}

void PropertyMapImpl::setProperty(const zkstring& name, Object* value) {
  if (value == nullptr) {
    removeProperty(name);
    return;
  }
  value->addRef();
  const EntryImpl entry(name, value);
  const int index = getEntryIndex(name);
  if (index >= 0) {
    entries[static_cast<std::size_t>(index)] = entry;  // the old value keeps its reference
  } else {
    entries.push_back(entry);
  }
}

void PropertyMapImpl::removeProperty(const zkstring& name) {
  const int index = getEntryIndex(name);
  if (index < 0) return;
  Object* const value = entries[static_cast<std::size_t>(index)].getValue();
  entries.erase(entries.begin() + index);
  ObjectRef::releaseRef(value);
}

bool PropertyMapImpl::hasProperty(const zkstring& name) { return getEntryIndex(name) >= 0; }

__int64 PropertyMapImpl::getLongProperty(const zkstring& name, __int64 defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setLongProperty(const zkstring& name, __int64 value) { setProperty(name, new LongObject(value)); }
bool PropertyMapImpl::getBooleanProperty(const zkstring& name, bool defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setBooleanProperty(const zkstring& name, bool value) { setProperty(name, new BoolObject(value)); }
int PropertyMapImpl::getIntProperty(const zkstring& name, int defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setIntProperty(const zkstring& name, int value) { setProperty(name, new IntObject(value)); }
double PropertyMapImpl::getDoubleProperty(const zkstring& name, double defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setDoubleProperty(const zkstring& name, double value) {
  setProperty(name, new DoubleObject(value));
}
float PropertyMapImpl::getFloatProperty(const zkstring& name, float defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setFloatProperty(const zkstring& name, float value) { setProperty(name, new FloatObject(value)); }
zkstring PropertyMapImpl::getStringProperty(const zkstring& name, const zkstring& defaultValue) {
  const Object* const value = getProperty(name);
  return value != nullptr ? value->toString() : defaultValue;
}
void PropertyMapImpl::setStringProperty(const zkstring& name, const zkstring& value) {
  setProperty(name, new StringObject(value));
}
DateTime PropertyMapImpl::getDateProperty(const zkstring& name, const DateTime& defaultValue) {
  return toValue(getProperty(name), defaultValue);
}
void PropertyMapImpl::setDateProperty(const zkstring& name, const DateTime& value) {
  setProperty(name, new DateObject(value));
}

StringList PropertyMapImpl::getPropertyNames(PropertyNameFilter& filter) {
  StringList accepted;
  for (const zkstring& name : getPropertyNames()) {
    if (filter.accept(name)) accepted.add(name);
  }
  return accepted;
}

StringList PropertyMapImpl::getPropertyNames() { return getNames({}); }

SmartPtr<IPropertyMap> PropertyMapImpl::getProperties(const zkstring& prefix) {
  return new PropertyMapSubset(this, prefix + ".");
}

void PropertyMapImpl::putProperties(IPropertyMap* source) { copyProperties(source, *this); }

std::vector<IPropertyMap::EntryImpl> PropertyMapImpl::getEntries(const zkstring& prefix) {
  std::vector<EntryImpl> found;
  for (const EntryImpl& entry : entries) {
    if (startsWith(entry.getKey(), prefix)) found.push_back(entry);
  }
  return found;
}

void PropertyMapImpl::clear(const zkstring& prefix) {
  std::erase_if(entries, [&prefix](const EntryImpl& entry) { return startsWith(entry.getKey(), prefix); });
}

StringList PropertyMapImpl::getNames(const zkstring& prefix) {
  StringList names;
  for (const EntryImpl& entry : entries) {
    if (startsWith(entry.getKey(), prefix)) names.add(entry.getKey());
  }
  return names;
}

int PropertyMapImpl::getEntryIndex(const zkstring& name) {
  const auto entry =
      std::find_if(entries.begin(), entries.end(), [&name](const EntryImpl& each) { return each.getKey() == name; });
  return entry != entries.end() ? static_cast<int>(entry - entries.begin()) : -1;
}

IPropertyMap::EntryImpl PropertyMapImpl::getEntry(int index) {
  if (index < 0 || index >= size()) throw std::out_of_range("invalid vector<T> subscript");
  return entries[static_cast<std::size_t>(index)];
}

int PropertyMapImpl::toValue(Object* value, int defaultValue) {
  return numberOf(value, defaultValue, &NumberObject::getInt, &Parsing::parseInt);
}
__int64 PropertyMapImpl::toValue(Object* value, __int64 defaultValue) {
  return numberOf(value, defaultValue, &NumberObject::getLong, &Parsing::parseLong);
}
float PropertyMapImpl::toValue(Object* value, float defaultValue) {
  return numberOf(value, defaultValue, &NumberObject::getFloat, &Parsing::parseFloat);
}
double PropertyMapImpl::toValue(Object* value, double defaultValue) {
  return numberOf(value, defaultValue, &NumberObject::getDouble, &Parsing::parseDouble);
}
bool PropertyMapImpl::toValue(Object* value, bool defaultValue) {
  if (const auto* const truth = dynamic_cast<BoolObject*>(value)) return truth->getValue();
  if (const auto* const text = dynamic_cast<StringObject*>(value)) return Parsing::parseBool(text->getValue());
  if (const auto* const number = dynamic_cast<NumberObject*>(value)) return number->getInt() != 0;
  return defaultValue;
}
DateTime PropertyMapImpl::toValue(Object* value, const DateTime& defaultValue) {
  const auto* const date = dynamic_cast<DateObject*>(value);
  return date != nullptr ? date->getValue() : defaultValue;
}

float PropertyMapSubset::getFloatProperty(const zkstring& name, float defaultValue) {
  return properties->getFloatProperty(prefix + name, defaultValue);
}
void PropertyMapSubset::setFloatProperty(const zkstring& name, float value) {
  properties->setFloatProperty(prefix + name, value);
}

StringList PropertyMapSubset::getPropertyNames(PropertyNameFilter& filter) {
  StringList names = properties->getNames(prefix);
  for (zkstring& name : names) {
    if (filter.accept(name)) name = name.substr(prefix.length());
  }
  return names;
}

int PropertyMapSubset::getPropertyCount() { return static_cast<int>(properties->getEntries(prefix).size()); }

SmartPtr<IPropertyMap> PropertyMapSubset::getProperties(const zkstring& below) {
  return new PropertyMapSubset(this, below + ".");
}

void PropertyMapSubset::putProperties(IPropertyMap* source) { copyProperties(source, *this); }

StringList PropertyMapSubset::getNames(const zkstring& below) {
  StringList names = properties->getNames(prefix + below);
  for (zkstring& name : names) name = name.substr(prefix.length());
  return names;
}

SmartPtr<IPropertyMap> PropertyMapDelegate::getProperties() {
  store();
  return properties;
}

IPropertyMap& PropertyMapDelegate::store() {
  if (properties.isNull()) properties = new PropertyMapImpl;
  return *properties;
}

}  // namespace zarvik
