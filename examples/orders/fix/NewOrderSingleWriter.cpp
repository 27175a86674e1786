#include "orders/fix/NewOrderSingleWriter.h"

#include "orders/As.h"
#include "orders/fix/NewOrderSingle.h"

using namespace zarvik;

namespace orders {

void NewOrderSingleWriter::writeData(DataObject* data, TransformContext& /*context*/) {
  auto& order = as<NewOrderSingle>(data);
  require(order, NewOrderSingle::CL_ORD_ID, 11);
  appendField("11", order.getClOrdID());
  if (order.isNotNull(NewOrderSingle::ACCOUNT)) appendField("1", order.getAccount());
  if (!is44()) require(order, NewOrderSingle::HANDL_INST, 21);
  if (order.isNotNull(NewOrderSingle::HANDL_INST)) appendField("21", order.getHandlInst());
  require(order, NewOrderSingle::SYMBOL, 55);
  appendField("55", order.getSymbol());
  if (order.isNotNull(NewOrderSingle::SECURITY_ID)) appendField("48", order.getSecurityID());
  if (order.isNotNull(NewOrderSingle::SECURITY_ID_SOURCE)) appendField("22", order.getSecurityIDSource());
  if (is44() && order.isNotNull(NewOrderSingle::MATURITY_DATE)) appendUTCDate("541", order.getMaturityDate());
  if (order.isNotNull(NewOrderSingle::SECURITY_TYPE)) appendField("167", order.getSecurityType());
  if (order.isNotNull(NewOrderSingle::SECURITY_EXCHANGE)) appendField("207", order.getSecurityExchange());
  require(order, NewOrderSingle::SIDE, 54);
  appendField("54", order.getSide());
  require(order, NewOrderSingle::TRANSACT_TIME, 60);
  appendUTCTimestamp("60", order.getTransactTime());
  require(order, NewOrderSingle::ORDER_QTY, 38);
  appendField("38", order.getOrderQty());
  require(order, NewOrderSingle::ORD_TYPE, 40);
  appendField("40", order.getOrdType());
  if (order.isNotNull(NewOrderSingle::PRICE)) appendField("44", order.getPrice());
  if (order.isNotNull(NewOrderSingle::CURRENCY)) appendField("15", order.getCurrency());
  if (order.isNotNull(NewOrderSingle::TIME_IN_FORCE)) appendField("59", order.getTimeInForce());
  if (is44() && order.isNotNull(NewOrderSingle::ORDER_CAPACITY)) appendField("528", order.getOrderCapacity());
  if (order.isNotNull(NewOrderSingle::SETTL_DATE)) appendUTCDate("64", order.getSettlDate());
  if (order.isNotNull(NewOrderSingle::TRADE_DATE)) appendUTCDate("75", order.getTradeDate());
  if (order.isNotNull(NewOrderSingle::TEXT)) appendField("58", order.getText());
  if (order.isNotNull(NewOrderSingle::RAW_DATA)) appendData("95", "96", order.getRawData());
  appendPortions("78", order.getAllocs(), "79", "80");
  if (is44()) appendParties("453", order.getParties(), "448", "447", "452");
}

}  // namespace orders
