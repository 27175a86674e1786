#include "orders/fix/FIXTrailer.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* FIXTrailer::metaInfo() {
  static const char* const names[] = {"CheckSum"};
  static const char* const types[] = {"String"};
  static DataObjectMetaInfo info(zkstringliteral("FIXTrailer"), names, types, FIELD_COUNT);
  return &info;
}

Object* FIXTrailer::getField0(int index, Object* reuse) const {
  switch (index) {
    case CHECK_SUM:
      return box(values.checkSum, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void FIXTrailer::setField0(int index, const Object* value) {
  switch (index) {
    case CHECK_SUM:
      return unbox(value, values.checkSum);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
