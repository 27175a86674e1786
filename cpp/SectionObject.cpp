#include "SectionObject.h"

#include <typeinfo>

#include "GuardedCast.h"
#include "KelvaraTypes.h"

namespace zarvik {

SectionObject::SectionObject(const DataObjectSection& section) : section(const_cast<DataObjectSection*>(&section)) {}

const SectionObject* SectionObject::of(const Object* value) {
  if (typeid(*value) == typeid(SectionObject)) return static_cast<const SectionObject*>(value);
  return value->getObjectType() == KelvaraTypes::SECTION_TYPE ? dynamic_cast<const SectionObject*>(value) : nullptr;
}

SectionObject& SectionObject::operator=(const SectionObject& other) {
  setSection(other.section);
  return *this;
}

SectionObject::~SectionObject() {
  if (owner) delete section;
}

void SectionObject::setSection(DataObjectSection* newSection) {
  if (newSection == section) return;  // an owner stays the owner of what it has
  if (owner) delete section;
  section = newSection;
  owner = false;
}

void SectionObject::setSection(const DataObjectSection& newSection) {
  setSection(const_cast<DataObjectSection*>(&newSection));
}

void SectionObject::setObject(const Object* value) { setSection(guardedCast<SectionObject>(value)->getSection()); }

zkstring SectionObject::toString() const { return section->toString(); }

const zkstring& SectionObject::getObjectType() const { return KelvaraTypes::SECTION_TYPE; }

}  // namespace zarvik
