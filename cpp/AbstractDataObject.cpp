#include "AbstractDataObject.h"

#include <algorithm>

#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "FromCatalogue.h"
#include "SectionObject.h"
#include "ThrowFrom.h"
#include "XMLFields.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/AbstractDataObject";

/// The qualified name, which looks only, though it is not declared so.
zkstring nameOf(const AbstractDataObject* record, int index) {
  return const_cast<AbstractDataObject*>(record)->getQualifiedName(index);
}

[[noreturn]] void throwOutOfBounds(int index) {
  throwFrom(here, FieldNotFoundException("Field index out of bounds - " + intToString(index)));
}
}  // namespace

bool AbstractDataObject::getField(int index, Object& target) const {
  if (isNullValue(index)) return false;
  getField0(index, &target);
  return true;
}

Object* AbstractDataObject::getField(int index) const { return isNullValue(index) ? nullptr : getField0(index); }

void AbstractDataObject::setField(int index, const Object* value) {
  if (value == nullptr) {
    setNull(index);
  } else {
    setNotNull(index);
    setField0(index, value);
  }
}

bool AbstractDataObject::isEmpty() const {
  for (int i = 0; i < getFieldCount(); ++i) {
    if (isNullValue(i)) continue;
    if (!getMetaInfo()->isSection(i)) return false;
    const SmartPtr<Object> field(getField0(i));
    const auto* const section = dynamic_cast<const SectionObject*>(field.get());
    if (section == nullptr || !section->getSection()->isEmpty()) return false;
  }
  return true;
}

DataObject* AbstractDataObject::createSectionElement(const zkstring& sectionName,
                                                     DataObjectSection* /*section*/) const {
  throwFrom(here, fromCatalogue<FieldNotFoundException>("SRT178", {sectionName}));
}

zkstring AbstractDataObject::toString() const { return const_cast<AbstractDataObject*>(this)->toXMLString(); }

void AbstractDataObject::assertNotNull(int index) const {
  if (isNotNull(index)) return;
  throwFrom(here, fromCatalogue<FieldNullException>("SRT600", {nameOf(this, index)}));
}

void AbstractDataObject::setAllFieldsToNull() { std::fill_n(flags, getFieldCount(), false); }

void AbstractDataObject::throwNullValueException(int index) const {
  throwFrom(here, fromCatalogue<FieldNullException>("SRT500", {nameOf(this, index)}));
}

void AbstractDataObject::setField0(int index, const Object* /*value*/) { throwOutOfBounds(index); }

Object* AbstractDataObject::getField0(int index, Object* reuse) const {
  if (dynamic_cast<XMLFields*>(reuse) != nullptr) return nullptr;  // which then asks for a box
  throwOutOfBounds(index);
}

Object* AbstractDataObject::getField0(int index) const { return getField0(index, nullptr); }

zkstring AbstractDataObject::toXMLStringImpl(int level) {
  const int count = getFieldCount();
  XMLFields out(level, count);
  for (int i = 0; i < count; ++i) {
    if (isNotNull(i)) writeField(i, out);
  }
  return out.text();
}

/// Most classes put the value straight into `out`; those that only box are asked for the box.
void AbstractDataObject::writeField(int index, XMLFields& out) const {
  out.beginField(*metaInfo->getFieldMetaInfo(index));
  Object* const given = getField0(index, &out);
  if (given == &out) return;
  const SmartPtr<Object> value(given != nullptr ? given : getField0(index));
  if (!value.isNull()) out.setObject(value.get());
}

}  // namespace zarvik
