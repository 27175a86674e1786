#include "orders/Leg.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"
#include "orders/Party.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Leg::metaInfo() {
  static const char* const names[] = {"Symbol", "Ratio", "Parties"};
  static const char* const types[] = {"String", "Integer", "Section"};
  struct Info : DataObjectMetaInfo {
    Info() : DataObjectMetaInfo(zkstringliteral("Leg"), names, types, FIELD_COUNT) {
      getSectionMetaInfo(PARTIES)->init(Party::metaInfo(), 0, -1);
    }
  };
  static Info info;
  return &info;
}

Leg::Leg(DataObjectSection* parent) : AbstractDataObject(metaInfo(), values.flags, parent) {
  parties.initialize(this, *metaInfo()->getSectionMetaInfo(PARTIES));
  setNotNull(PARTIES);
}

void Leg::reset() {
  AbstractDataObject::reset();
  parties.clear();
  setNotNull(PARTIES);
}

DataObject* Leg::createSectionElement(const zkstring& sectionName, DataObjectSection* section) const {
  switch (metaInfo()->getFieldIndexIfExists(sectionName)) {
    case PARTIES:
      return new Party(section);
    default:
      return AbstractDataObject::createSectionElement(sectionName, section);
  }
}

Object* Leg::getField0(int index, Object* reuse) const {
  switch (index) {
    case SYMBOL:
      return box(values.symbol, reuse);
    case RATIO:
      return box(values.ratio, reuse);
    case PARTIES:
      return box(parties, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Leg::setField0(int index, const Object* value) {
  switch (index) {
    case SYMBOL:
      return unbox(value, values.symbol);
    case RATIO:
      return unbox(value, values.ratio);
    case PARTIES:
      return unbox(value, parties);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
