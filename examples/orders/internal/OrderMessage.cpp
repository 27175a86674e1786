#include "orders/internal/OrderMessage.h"

#include "orders/Names.h"
#include "orders/Order.h"

using namespace zarvik;

namespace orders {

OrderMessage::OrderMessage() : AbstractInternalMessage(ORDER_MESSAGE) {
  addProcessing(PREPROCESSING_NODE_NAME, &preprocessing);
  addValidator("Default", &validation);
  addProcessing(POSTPROCESSING_NODE_NAME, &postprocessing);
}

DataObject* OrderMessage::createNormalizedObject() { return new Order; }

}  // namespace orders
