#include "orders/internal/OrderTriggers.h"

#include "ITrigger.h"
#include "TransformContext.h"
#include "orders/As.h"
#include "orders/Execution.h"
#include "orders/Names.h"
#include "orders/Order.h"

using namespace zarvik;

namespace orders {
namespace {

bool isLarge(const Order& order) {
  static const BigDecimal limit(1000000);
  return order.isNotNull(Order::NOTIONAL) && order.getNotional() >= limit;
}
}  // namespace

// The triggers are the message's own, so they hold no count on it.
OrderTriggers::OrderTriggers()
    : Triggers(nullptr),
      delivery(nullptr, "RouterTrigger", "delivery"),
      archive(nullptr, "RouterTrigger", "archive"),
      journal(nullptr, "RouterTrigger", "journal") {
  delivery.addProperty(SENDER_PROPERTY, "HOUSE");
  delivery.addProperty(TARGET_PROPERTY, "STREET");
  archive.addProperty(TransformContext::OUTPUT_FORMAT_PROPERTY, XML_OUT);
  archive.addProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, FILES);
  journal.addProperty(TransformContext::OUTPUT_FORMAT_PROPERTY, BYTES_OUT);
  journal.addProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, FILES);
}

void OrderTriggers::onNewMessage0(DataObject* message, TransformContext& context) {
  auto& order = as<Order>(message);
  getTriggerObject(delivery)->onNewMessage(message, context);
  if (isLarge(order)) getTriggerObject(archive)->onNewMessage(message, context);
  if (order.getExecutions().getElementCount() != 0) getTriggerObject(journal)->onNewMessage(message, context);
}

}  // namespace orders
