#include "ExceptionDataObject.h"

#include <algorithm>
#include <iterator>

#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "DataObjectXML.h"
#include "Parsing.h"
#include "WrapperObjects.h"

namespace zarvik {
namespace {

/// `reuse` with the value put in by `set`, or without one a new box with it.
template <class Box, class Value>
Object* boxed(const Value& value, Object* reuse, void (Object::*set)(Value)) {
  if (reuse == nullptr) return new Box(value);
  (reuse->*set)(value);
  return reuse;
}

void appendLine(zkstringbuffer& out, int level, const char* begin, const zkstring& tag) {
  DataObjectXML::appendIndent(out, level);
  out.append(begin).append(tag).append(">\n");
}
}  // namespace

constinit const zkstringliteral ExceptionDataObject::THIS_TYPE("TransformException");

DataObjectMetaInfo* ExceptionDataObject::metaInfo() {
  static const char* const names[] = {"Type", "Message", "ErrorCode", "Severity", "Cascadable", "FieldName", "FieldID"};
  static const char* const types[] = {"String", "String", "String", "String", "Boolean", "String", "String"};
  static_assert(std::size(names) == FIELD_COUNT && std::size(types) == FIELD_COUNT);
  // Stays, for errors at process end.
  static auto* const info = new DataObjectMetaInfo(zkstringliteral("ExceptionDataObject2"), names, types, FIELD_COUNT);
  return info;
}

ExceptionDataObject::ExceptionDataObject() : AbstractDataObject(metaInfo(), flags, nullptr) {}

ExceptionDataObject::ExceptionDataObject(const ExceptionDataObject& other)
    : Object(),
      AbstractDataObject(other, flags, nullptr),
      ExceptionObject(),
      cascadable(other.cascadable),
      texts(other.texts),
      contextProperties(other.contextProperties) {
  std::copy(std::begin(other.flags), std::end(other.flags), flags);
}

ExceptionDataObject& ExceptionDataObject::operator=(const ExceptionDataObject& other) {
  if (this == &other) return *this;
  std::copy(std::begin(other.flags), std::end(other.flags), flags);
  cascadable = other.cascadable;
  texts = other.texts;
  contextProperties = other.contextProperties;
  return *this;
}

bool ExceptionDataObject::getCascadable() const {
  ensureNotNull(CASCADABLE);
  return cascadable;
}

void ExceptionDataObject::setCascadable(bool value) {
  cascadable = value;
  setNotNull(CASCADABLE);
}

zkstring ExceptionDataObject::getContextProperty(const zkstring& name) const {
  const auto found = contextProperties.find(name);
  return found == contextProperties.end() ? zkstring() : found->second;
}

void ExceptionDataObject::setContextProperty(const zkstring& name, const zkstring& value) {
  if (value.empty()) {
    contextProperties.erase(name);
  } else {
    contextProperties.insert_or_assign(name, value);
  }
}

int ExceptionDataObject::getNumber(const zkstring& name) const {
  const zkstring value = getContextProperty(name);
  return value.empty() ? -1 : Parsing::parseInt(value);
}

void ExceptionDataObject::setNumber(const zkstring& name, int value) { setContextProperty(name, intToString(value)); }

Object* ExceptionDataObject::clone() const { return new ExceptionDataObject(*this); }

zkstring ExceptionDataObject::toXMLString(int indent) {
  zkstringbuffer out;
  appendLine(out, indent, "<", THIS_TYPE);
  out.append(toXMLStringImpl(indent + 1));
  for (const auto& [name, value] : contextProperties) {
    DataObjectXML::appendIndent(out, indent + 1);
    out.append('<').append(name).append('>').append(value).append("</").append(name).append(">\n");
  }
  appendLine(out, indent, "</", THIS_TYPE);
  return out;
}

zkstring ExceptionDataObject::getRootXMLTag() { return THIS_TYPE; }

Object* ExceptionDataObject::getField0(int index, Object* reuse) const {
  if (index < 0 || index >= FIELD_COUNT) return AbstractDataObject::getField0(index, reuse);
  if (index == CASCADABLE) return boxed<BoolObject, bool>(cascadable, reuse, &Object::setBoolean);
  return boxed<StringObject, const zkstring&>(texts[static_cast<Field>(index)], reuse, &Object::setString);
}

void ExceptionDataObject::setField0(int index, const Object* value) {
  if (index < 0 || index >= FIELD_COUNT) return AbstractDataObject::setField0(index, value);
  if (index == CASCADABLE) {
    cascadable = value->getBoolean();
  } else {
    texts[static_cast<Field>(index)] = value->getString();
  }
}

}  // namespace zarvik
