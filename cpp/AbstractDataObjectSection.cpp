#include "AbstractDataObjectSection.h"

#include "Conversion.h"
#include "DataObjectBase.h"
#include "Exceptions.h"
#include "FieldMetaInfo.h"
#include "FromCatalogue.h"
#include "GuardedCast.h"
#include "ThrowFrom.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/AbstractDataObjectSection";
}  // namespace

void AbstractDataObjectSection::initialize(DataObject* owner, const zkstring& sectionName, int least, int greatest) {
  parent = owner;
  name = sectionName;
  minOccurs = least;
  maxOccurs = greatest;
}

void AbstractDataObjectSection::initialize(DataObject* owner, const SectionMetaInfo& described) {
  initialize(owner, described.getName(), described.getMinOccurs(), described.getMaxOccurs());
}

DataObject* AbstractDataObjectSection::createElement() {
  return guardedCast<DataObjectBase>(parent)->createSectionElement(name, this);
}

zkstring AbstractDataObjectSection::getQualifiedName() {
  DataObjectSection* const above = parent != nullptr ? parent->getParentSection() : nullptr;
  return above != nullptr ? above->getQualifiedName() + "." + name : name;
}

DataObject* AbstractDataObjectSection::getRootDataObject() const { return parent->getRootDataObject(); }

void AbstractDataObjectSection::assertConstraints() const {
  const int count = getElementCount();
  if (count < minOccurs) {
    throwFrom(here, fromCatalogue<SectionConstraintException>("SRT301", {name, minOccurs}));
  }
  if (maxOccurs != -1 && count > maxOccurs) {
    // Odd on purpose: the text has three places, and the third stays as it is.
    throwFrom(here, fromCatalogue<SectionConstraintException>("SRT302", {name, maxOccurs}));
  }
}

bool AbstractDataObjectSection::isEmpty() const {
  for (int i = 0; i < getElementCount(); ++i) {
    if (!getElement(i)->isEmpty()) return false;
  }
  return true;
}

zkstring AbstractDataObjectSection::toXMLString(int level) const {
  return toXMLString(FieldMetaInfo::computeMangledName(name), level);
}

zkstring AbstractDataObjectSection::toXMLString(const zkstring& tag, int level) const {
  zkstringbuffer out;
  appendXML(out, XMLTag(tag), level);
  return out;
}

void AbstractDataObjectSection::throwElementIndexOutOfBounds(int index, int size) const {
  throwFrom(here, FieldNotFoundException("Error accessing element of section " +
                                         const_cast<AbstractDataObjectSection*>(this)->getQualifiedName() +
                                         ". Section index out of bound, size = " + intToString(size) +
                                         ", index accessed = " + intToString(index)));
}

}  // namespace zarvik
