#include "GenericDataObject.h"

#include <cassert>

#include "AbstractDataObjectSection.h"
#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "DataObjectSectionImpl.h"
#include "Exceptions.h"
#include "GuardedCast.h"
#include "SectionObject.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/GenericDataObject";

/// A deep copy of a section for its new owner.
std::unique_ptr<DataObjectSection> sectionFor(DataObject* owner, const DataObjectSection& original) {
  std::unique_ptr<DataObjectSection> section(original.clone());
  if (auto* const known = dynamic_cast<AbstractDataObjectSection*>(section.get())) {
    known->initialize(owner, known->getName(), known->getMinOccurs(), known->getMaxOccurs());
  }
  return section;
}
}  // namespace

GenericDataObject::GenericDataObject(DataObjectMetaInfo* metaInfo, bool ownsMetaInfo)
    : GenericDataObject(nullptr, metaInfo, ownsMetaInfo) {}

GenericDataObject::GenericDataObject(DataObjectSection* parent, DataObjectMetaInfo* metaInfo, bool ownsMetaInfo)
    : parentSection(parent),
      metaInfo(metaInfo),
      ownMetaInfo(ownsMetaInfo ? metaInfo : nullptr),
      fields(static_cast<unsigned int>(metaInfo->getFieldCount())) {}

GenericDataObject::GenericDataObject(const GenericDataObject& other)
    : GenericDataObject(nullptr, other.metaInfo, false) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const Object* const value = other.fields[i].get();
    if (value == nullptr) continue;
    if (const auto* const wrapper = dynamic_cast<const SectionObject*>(value)) {
      sections.push_back(sectionFor(this, *wrapper->getSection()));
      fields[i] = new SectionObject(*sections.back());
    } else {
      fields[i] = value->clone();
    }
  }
}

GenericDataObject::~GenericDataObject() = default;

DataObjectSection* GenericDataObject::getSection(int index) const {
  if (const Object* const value = field(index).get()) return guardedCast<SectionObject>(value)->getSection();
  return addSection(index);
}

bool GenericDataObject::getField(int index, Object& target) const {
  const Object* const value = field(index).get();
  if (value != nullptr) target.setObject(value);
  return value != nullptr;
}

Object* GenericDataObject::getField(int index) const {
  const Object* const value = field(index).get();
  return value != nullptr ? value->clone() : nullptr;
}

Object* GenericDataObject::getFieldCheckNull(int index) const {
  if (Object* const value = getField(index)) return value;
  throwFrom(here, TransformNullValueException("Attempt to access field '" + nameForError(index) + "' with NULL value"));
}

bool GenericDataObject::isNull(int index) const { return field(index).isNull(); }

void GenericDataObject::setNull(int index) { field(index).release(); }

void GenericDataObject::setField(int index, const Object* value) {
  assert(value != nullptr);
  SmartPtr<Object>& slot = field(index);
  slot = SmartPtr<Object>(value->clone());  // made before the old value goes, which it may be part of
}

bool GenericDataObject::isEmpty() const {
  for (int i = 0; i < getFieldCount(); ++i) {
    const Object* const value = field(i).get();
    if (value == nullptr) continue;
    if (const auto* const section = dynamic_cast<const DataObjectSection*>(value)) {
      if (!section->isEmpty()) return false;
    } else if (!isSynthesized(i)) {
      return false;
    }
  }
  return true;
}

zkstring GenericDataObject::getRootXMLTag() { return metaInfo->getName(); }

DataObject* GenericDataObject::createSectionElement(const zkstring& sectionName, DataObjectSection* section) const {
  const auto* const described = dynamic_cast<const SectionMetaInfo*>(metaInfo->getFieldMetaInfo(sectionName));
  if (described == nullptr) throwFrom(here, FieldTypeMismatchException(sectionName + " is not a section"));
  return new GenericDataObject(section, described->getDataObjectMetaInfo(), false);
}

FieldMetaInfo* GenericDataObject::getFieldMetaInfo(int index) const { return metaInfo->getFieldMetaInfo(index); }
bool GenericDataObject::isSynthesized(int index) const { return metaInfo->isSynthesized(index); }

SmartPtr<Object>& GenericDataObject::field(int index) const {
  if (index < 0 || index >= getFieldCount()) {
    throwFrom(here, FieldNotFoundException("No valid field at index " + intToString(index) + " for " +
                                           (parentSection != nullptr ? parentSection->getQualifiedName() : "Root")));
  }
  return fields[static_cast<unsigned int>(index)];
}

DataObjectSection* GenericDataObject::addSection(int index) const {
  const SectionMetaInfo* const described = metaInfo->getSectionMetaInfo(index);
  if (described == nullptr) throwFrom(here, FieldNotFoundException(getFieldName(index) + " is not a section"));
  auto section = std::make_unique<DataObjectSectionImpl>();
  section->initialize(const_cast<GenericDataObject*>(this), *described);
  field(index) = new SectionObject(*section);
  return sections.emplace_back(std::move(section)).get();
}

}  // namespace zarvik
