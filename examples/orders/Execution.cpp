#include "orders/Execution.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Execution::metaInfo() {
  static const char* const names[] = {"OrderID",   "ExecutionID", "Kind",   "Status",      "LastQuantity",
                                      "LastPrice", "Open",        "Filled", "AveragePrice"};
  static const char* const types[] = {"String", "String",  "Character", "Character", "Integer",
                                      "Double", "Integer", "Integer",   "Double"};
  static DataObjectMetaInfo info(zkstringliteral("Execution"), names, types, FIELD_COUNT);
  return &info;
}

Object* Execution::getField0(int index, Object* reuse) const {
  switch (index) {
    case ORDER_ID:
      return box(values.orderID, reuse);
    case EXECUTION_ID:
      return box(values.executionID, reuse);
    case KIND:
      return box(values.kind, reuse);
    case STATUS:
      return box(values.status, reuse);
    case LAST_QUANTITY:
      return box(values.lastQuantity, reuse);
    case LAST_PRICE:
      return box(values.lastPrice, reuse);
    case OPEN:
      return box(values.open, reuse);
    case FILLED:
      return box(values.filled, reuse);
    case AVERAGE_PRICE:
      return box(values.averagePrice, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Execution::setField0(int index, const Object* value) {
  switch (index) {
    case ORDER_ID:
      return unbox(value, values.orderID);
    case EXECUTION_ID:
      return unbox(value, values.executionID);
    case KIND:
      return unbox(value, values.kind);
    case STATUS:
      return unbox(value, values.status);
    case LAST_QUANTITY:
      return unbox(value, values.lastQuantity);
    case LAST_PRICE:
      return unbox(value, values.lastPrice);
    case OPEN:
      return unbox(value, values.open);
    case FILLED:
      return unbox(value, values.filled);
    case AVERAGE_PRICE:
      return unbox(value, values.averagePrice);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
