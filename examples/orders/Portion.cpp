#include "orders/Portion.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Portion::metaInfo() {
  static const char* const names[] = {"ID", "Quantity"};
  static const char* const types[] = {"String", "Integer"};
  static DataObjectMetaInfo info(zkstringliteral("Portion"), names, types, FIELD_COUNT);
  return &info;
}

Object* Portion::getField0(int index, Object* reuse) const {
  switch (index) {
    case ID:
      return box(values.id, reuse);
    case QUANTITY:
      return box(values.quantity, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Portion::setField0(int index, const Object* value) {
  switch (index) {
    case ID:
      return unbox(value, values.id);
    case QUANTITY:
      return unbox(value, values.quantity);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
