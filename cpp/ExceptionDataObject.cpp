#include "ExceptionDataObject.h"

#include <algorithm>
#include <iterator>

#include "Boxing.h"
#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "DataObjectXML.h"
#include "Parsing.h"

namespace zarvik {

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
  DataObjectXML::appendTag(out, indent, "<", THIS_TYPE);
  out.append(toXMLStringImpl(indent + 1));
  for (const auto& [name, value] : contextProperties) {
    DataObjectXML::appendIndent(out, indent + 1);
    out.append('<').append(name).append('>').append(value).append("</").append(name).append(">\n");
  }
  DataObjectXML::appendTag(out, indent, "</", THIS_TYPE);
  return out;
}

zkstring ExceptionDataObject::getRootXMLTag() { return THIS_TYPE; }

Object* ExceptionDataObject::getField0(int index, Object* reuse) const {
  if (index < 0 || index >= FIELD_COUNT) return AbstractDataObject::getField0(index, reuse);
  if (index == CASCADABLE) return box(cascadable, reuse);
  return box(texts[static_cast<Field>(index)], reuse);
}

void ExceptionDataObject::setField0(int index, const Object* value) {
  if (index < 0 || index >= FIELD_COUNT) return AbstractDataObject::setField0(index, value);
  if (index == CASCADABLE) {
    unbox(value, cascadable);
  } else {
    unbox(value, texts[static_cast<Field>(index)]);
  }
}

}  // namespace zarvik
