#include "orders/Instrument.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Instrument::metaInfo() {
  static const char* const names[] = {"Symbol", "Maturity", "ISIN"};
  static const char* const types[] = {"String", "DateOnly", "String"};
  static DataObjectMetaInfo info(zkstringliteral("Instrument"), names, types, FIELD_COUNT);
  return &info;
}

Object* Instrument::getField0(int index, Object* reuse) const {
  switch (index) {
    case SYMBOL:
      return box(values.symbol, reuse);
    case MATURITY:
      return box(values.maturity, reuse);
    case ISIN:
      return box(values.isin, reuse);
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
    case ISIN:
      return unbox(value, values.isin);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
