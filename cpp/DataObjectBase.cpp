#include "DataObjectBase.h"

#include "DataObjectMetaInfo.h"
#include "DataObjectSection.h"
#include "DataObjectXML.h"
#include "Exceptions.h"
#include "FromCatalogue.h"
#include "GuardedCast.h"
#include "KelvaraTypes.h"
#include "LiteralTail.h"
#include "Parsing.h"
#include "SectionObject.h"
#include "ThrowFrom.h"
#include "XMLFields.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/DataObjectBase";

void copySection(const DataObjectSection& source, DataObjectSection& target) {
  target.clear();
  for (int i = 0; i < source.getElementCount(); ++i) {
    const SmartPtr<DataObject> element(target.createElement());
    DataObjectBase::copy(source.getElement(i), element.get());
    target.addElement(element.get());
  }
}
}  // namespace

DataObjectSection* DataObjectBase::getSection(int index) const {
  const SmartPtr<Object> field(getField(index));
  return guardedCast<SectionObject>(field.get())->getSection();
}
DataObjectSection* DataObjectBase::getSection(const zkstring& name) const { return getSection(getFieldIndex(name)); }

bool DataObjectBase::getField(const zkstring& name, Object& target) const {
  return getField(getFieldIndex(name), target);
}
Object* DataObjectBase::getField(const zkstring& name) const { return getField(getFieldIndex(name)); }

Object* DataObjectBase::getFieldCheckNull(int index) const {
  if (Object* const field = getField(index)) return field;
  throwFrom(here, fromCatalogue<TransformNullValueException>("SRT500", {nameForError(index)}));
}

SmartPtr<Object> DataObjectBase::getFieldVal(int index) { return getField(index); }
SmartPtr<Object> DataObjectBase::getFieldVal(const zkstring& name) { return getField(name); }
SmartPtr<Object> DataObjectBase::getFieldCheckNullVal(int index) { return getFieldCheckNull(index); }

bool DataObjectBase::isNull(const zkstring& name) const { return isNull(getFieldIndex(name)); }
void DataObjectBase::setNull(const zkstring& name) { setNull(getFieldIndex(name)); }

void DataObjectBase::setField(int index, const Object& value) { setField(index, &value); }
void DataObjectBase::setField(const zkstring& name, const Object& value) { setField(name, &value); }
void DataObjectBase::setField(const zkstring& name, const Object* value) { setField(getFieldIndex(name), value); }

int DataObjectBase::getFieldIndex(const zkstring& name) const { return getMetaInfo()->getFieldIndex(name); }
const zkstring& DataObjectBase::getFieldType(const zkstring& name) const {
  return getMetaInfo()->getFieldMetaInfo(name)->getType();
}
const zkstring& DataObjectBase::getFieldType(int index) const { return getMetaInfo()->getFieldType(index); }
const zkstring& DataObjectBase::getFieldName(int index) const { return getMetaInfo()->getFieldName(index); }

zkstring DataObjectBase::getQualifiedName(int index) {
  DataObjectSection* const section = getParentSection();
  const zkstring& name = getFieldName(index);
  return section != nullptr ? section->getQualifiedName() + "." + name : name;
}

int DataObjectBase::getFieldCount() const { return getMetaInfo()->getFieldCount(); }

zkstring DataObjectBase::toXMLString() { return withinRootTag(1); }

zkstring DataObjectBase::toXMLString(int level) {
  return getParentSection() != nullptr ? toXMLStringImpl(level) : withinRootTag(level);
}

DataObject* DataObjectBase::getRootDataObject() const {
  const DataObjectSection* const section = getParentSection();
  return section != nullptr ? section->getRootDataObject() : const_cast<DataObjectBase*>(this);
}

void DataObjectBase::read(std::istream& /*in*/) {}
void DataObjectBase::write(std::ostream& /*out*/) const {}

zkstring DataObjectBase::toString() const {
  zkstringbuffer out;
  for (int i = 0; i < getFieldCount(); ++i) {
    if (i > 0) out.append(", ");
    out.append(getFieldName(i)).append('=');
    const SmartPtr<Object> field(getField(i));
    if (!field.isNull()) out.append(field->toString());
  }
  return out;
}

bool DataObjectBase::getField(int index, zkstring& text) const {
  StringObject value;
  if (!getField(index, value)) return false;
  text = value.getValue();
  return true;
}

void DataObjectBase::setField(int index, const zkstring& text) {
  const StringObject value(text);
  setField(index, static_cast<const Object&>(value));
}

void DataObjectBase::setField(const zkstring& name, const zkstring& text) {
  const StringObject value(text);
  setField(name, static_cast<const Object&>(value));
}

const zkstring& DataObjectBase::getMangledName(int index) const { return getMetaInfo()->getMangledName(index); }
const zkstring& DataObjectBase::getMangledName(const zkstring& name) const {
  return getMetaInfo()->getMangledName(name);
}

void DataObjectBase::copy(const DataObject* source, DataObject* target) {
  for (int i = 0; i < source->getFieldCount(); ++i) {
    const SmartPtr<Object> field(source->getField(i));
    if (field.isNull()) {
      target->setNull(i);
    } else if (const SectionObject* const section = SectionObject::of(field.get())) {
      copySection(*section->getSection(), *target->getSection(i));
    } else {
      target->setField(i, field.get());
    }
  }
}

zkstring DataObjectBase::getRootXMLTag() { return zkstringliteral("DataObject"); }

DataObject* DataObjectBase::createSectionElement(const zkstring& /*sectionName*/,
                                                 DataObjectSection* /*section*/) const {
  return nullptr;
}

zkstring DataObjectBase::toXMLStringImpl(int level) {
  XMLFields out(level, getFieldCount());
  for (int i = 0; i < getFieldCount(); ++i) {
    if (isNull(i)) continue;
    const SmartPtr<Object> value(getField(i));
    if (value.isNull()) continue;
    out.beginField(*getMetaInfo()->getFieldMetaInfo(i));
    out.setObject(value.get());
  }
  return out.text();
}

zkstring DataObjectBase::withinRootTag(int level) {
  zkstringbuffer out;
  DataObjectXML::appendTag(out, level - 1, "<", getRootXMLTag());
  const zkstring fields = toXMLStringImpl(level);
  out.getTail(std::size_t{fields.length()} + out.length() + 1);  // room for both tags
  out.append(fields);
  DataObjectXML::appendTag(out, level - 1, "</", getRootXMLTag());
  return out;
}

zkstring DataObjectBase::nameForError(int index) const {
  try {
    return const_cast<DataObjectBase*>(this)->getQualifiedName(index);
  } catch (...) {
    return literalTail("at index ", index);
  }
}

}  // namespace zarvik
