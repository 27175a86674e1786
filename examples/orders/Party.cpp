#include "orders/Party.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Party::metaInfo() {
  static const char* const names[] = {"ID", "Role", "Source"};
  static const char* const types[] = {"String", "Integer", "Character"};
  static DataObjectMetaInfo info(zkstringliteral("Party"), names, types, FIELD_COUNT);
  return &info;
}

Object* Party::getField0(int index, Object* reuse) const {
  switch (index) {
    case ID:
      return box(values.id, reuse);
    case ROLE:
      return box(values.role, reuse);
    case SOURCE:
      return box(values.source, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Party::setField0(int index, const Object* value) {
  switch (index) {
    case ID:
      return unbox(value, values.id);
    case ROLE:
      return unbox(value, values.role);
    case SOURCE:
      return unbox(value, values.source);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
