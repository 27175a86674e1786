#include "formula/MessageFunctions.h"

#include "ByteArrayInputSource.h"
#include "Exceptions.h"
#include "StringInputSource.h"
#include "ThrowFrom.h"
#include "WildcardFilter.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/formula/MessageFunctions";

/// What `handle` points to; a null one is an error of the formula.
template <class T>
T& valueOf(const SmartPtr<T>& handle) {
  if (handle.isNull()) throwFrom(here, TransformNullValueException("Null value"));
  return *handle;
}
}  // namespace

template <class Handle>
bool PropertyFunctions<Handle>::hasProperty(const Handle& map, const zkstring& name) {
  return valueOf(map).hasProperty(name);
}
template <class Handle>
zkstring PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name) {
  return valueOf(map).getStringProperty(name, {});
}
template <class Handle>
zkstring PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, const zkstring& defaultValue) {
  return valueOf(map).getStringProperty(name, defaultValue);
}
template <class Handle>
zkstring PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, const char* defaultValue) {
  return valueOf(map).getStringProperty(name, defaultValue);
}
template <class Handle>
int PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, int defaultValue) {
  return valueOf(map).getIntProperty(name, defaultValue);
}
template <class Handle>
__int64 PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, __int64 defaultValue) {
  return valueOf(map).getLongProperty(name, defaultValue);
}
template <class Handle>
float PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, float defaultValue) {
  return valueOf(map).getFloatProperty(name, defaultValue);
}
template <class Handle>
double PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, double defaultValue) {
  return valueOf(map).getDoubleProperty(name, defaultValue);
}
template <class Handle>
bool PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, bool defaultValue) {
  return valueOf(map).getBooleanProperty(name, defaultValue);
}
template <class Handle>
DateTime PropertyFunctions<Handle>::getProperty(const Handle& map, const zkstring& name, const DateTime& defaultValue) {
  return valueOf(map).getDateProperty(name, defaultValue);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, const zkstring& value) {
  valueOf(map).setStringProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, const char* value) {
  valueOf(map).setStringProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, int value) {
  valueOf(map).setIntProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, __int64 value) {
  valueOf(map).setLongProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, float value) {
  valueOf(map).setFloatProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, double value) {
  valueOf(map).setDoubleProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, bool value) {
  valueOf(map).setBooleanProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::setProperty(const Handle& map, const zkstring& name, const DateTime& value) {
  valueOf(map).setDateProperty(name, value);
}
template <class Handle>
void PropertyFunctions<Handle>::removeProperty(const Handle& map, const zkstring& name) {
  valueOf(map).removeProperty(name);
}
template <class Handle>
void PropertyFunctions<Handle>::clearProperties(const Handle& map) {
  valueOf(map).clearProperties();
}
template <class Handle>
int PropertyFunctions<Handle>::getPropertyCount(const Handle& map) {
  return valueOf(map).getPropertyCount();
}
template <class Handle>
StringList PropertyFunctions<Handle>::getPropertyNames(const Handle& map) {
  return valueOf(map).getPropertyNames();
}
template <class Handle>
StringList PropertyFunctions<Handle>::getPropertyNames(const Handle& map, const zkstring& pattern) {
  WildcardFilter filter(pattern);
  return valueOf(map).getPropertyNames(filter);
}
template <class Handle>
SmartPtr<IPropertyMap> PropertyFunctions<Handle>::getProperties(const Handle& map, const zkstring& prefix) {
  return valueOf(map).getProperties(prefix);
}
template <class Handle>
void PropertyFunctions<Handle>::putProperties(const Handle& target, const Handle& source) {
  valueOf(target).putProperties(&valueOf(source));
}

template class PropertyFunctions<RawMessage>;
template class PropertyFunctions<SmartPtr<IPropertyMap>>;

RawMessage MessageFunctions::toRawMessage(const Binary& bytes) { return new ByteArrayInputSource(bytes); }
RawMessage MessageFunctions::toRawMessage(const zkstring& text) { return new StringInputSource(text); }
RawMessage MessageFunctions::toRawMessage(const char* text) { return new StringInputSource(text); }
Binary MessageFunctions::toBinary(const RawMessage& message) { return valueOf(message).getAsBinary(); }
zkstring MessageFunctions::toText(const RawMessage& message) { return valueOf(message).getAsString(); }
zkstring MessageFunctions::getName(const RawMessage& message) { return valueOf(message).getName(); }
void MessageFunctions::setName(const RawMessage& message, const zkstring& name) { valueOf(message).setName(name); }

RawMessage MessageFunctions::getAttachment(const RawMessage& message, const zkstring& name) {
  return valueOf(message).getAttachment(name);
}
void MessageFunctions::setAttachment(const RawMessage& message, const zkstring& name, const RawMessage& attachment) {
  valueOf(message).addAttachment(name, attachment);
}
bool MessageFunctions::hasAttachment(const RawMessage& message, const zkstring& name) {
  return valueOf(message).hasAttachment(name);
}
RawMessageList MessageFunctions::getAttachments(const RawMessage& message) {
  RawMessageList attachments;
  for (const zkstring& name : getAttachmentNames(message)) attachments.add(valueOf(message).getAttachment(name));
  return attachments;
}
StringList MessageFunctions::getAttachmentNames(const RawMessage& message) {
  return valueOf(message).getAttachmentNames();
}

}  // namespace zarvik
