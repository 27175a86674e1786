#include "orders/internal/OrderRules.h"

#include "Parsing.h"
#include "orders/As.h"
#include "orders/Instrument.h"
#include "orders/Names.h"
#include "orders/Order.h"

using namespace zarvik;

namespace orders {

void OrderPreprocessing::process(DataObject* object) {
  auto& order = as<Order>(object);
  if (order.isNull(Order::URGENT)) order.setUrgent(false);
  if (order.isNull(Order::TRADE_DATE) && order.isNotNull(Order::ENTERED)) order.setTradeDate(order.getEntered());
}

void OrderValidation::validate(DataObject* object) {
  auto* const order = &as<Order>(object);
  check(order->isNotNull(Order::ID), "present", order, Order::ID);
  check(order->isNotNull(Order::QUANTITY) && order->getQuantity() > 0, "positive", order, Order::QUANTITY);
  check(order->isNull(Order::PRICE) || order->getPrice() > 0, "positive", order, Order::PRICE);
  Instrument* const instrument = order->getInstrument();
  if (instrument->isNotNull(Instrument::ISIN)) {
    const SmartPtr<Object> isin(instrument->getField(Instrument::ISIN));
    check(customValidation(ISIN_CHECK, isin.get(), zkstring::EMPTY, instrument), "check digit", instrument,
          Instrument::ISIN);
  }
}

void OrderPostprocessing::process(DataObject* object) {
  auto& order = as<Order>(object);
  if (order.isNull(Order::PRICE)) return;
  const BigDecimal price(Parsing::doubleToString(order.getPrice()));  // as it was written, and so exact
  order.setNotional(BigDecimal(order.getQuantity()) * price);
}

}  // namespace orders
