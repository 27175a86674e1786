#include "Instrument.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Instrument::metaInfo() {
  static const char* const names[] = {"Symbol", "Maturity"};
  static const char* const types[] = {"String", "DateOnly"};
  static DataObjectMetaInfo info(zkstringliteral("Instrument"), names, types, FIELD_COUNT);
  return &info;
}

Object* Instrument::getField0(int index, Object* reuse) const {
  switch (index) {
    case SYMBOL:
      return box(values.symbol, reuse);
    case MATURITY:
      return box(values.maturity, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Instrument::setField0(int index, const Object* value) {
  switch (index) {
    case SYMBOL:
      return unbox(value, values.symbol);
    case MATURITY:
      return unbox(value, values.maturity);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
