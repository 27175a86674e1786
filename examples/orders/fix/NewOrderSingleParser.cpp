#include "orders/fix/NewOrderSingleParser.h"

#include "orders/fix/NewOrderSingle.h"

using namespace zarvik;

namespace orders {

DataObject* NewOrderSingleParser::createBody() const { return new NewOrderSingle; }

bool NewOrderSingleParser::takeField(DataObject& body, Field& field, Tokenizer& tokenizer) {
  auto& order = static_cast<NewOrderSingle&>(body);
  switch (field.getTag()) {
    case 11:
      order.setClOrdID(text(order, NewOrderSingle::CL_ORD_ID, field));
      return true;
    case 1:
      order.setAccount(text(order, NewOrderSingle::ACCOUNT, field));
      return true;
    case 21:
      order.setHandlInst(character(order, NewOrderSingle::HANDL_INST, field));
      return true;
    case 55:
      order.setSymbol(text(order, NewOrderSingle::SYMBOL, field));
      return true;
    case 48:
      order.setSecurityID(text(order, NewOrderSingle::SECURITY_ID, field));
      return true;
    case 22:
      order.setSecurityIDSource(text(order, NewOrderSingle::SECURITY_ID_SOURCE, field));
      return true;
    case 541:
      if (!is44()) return false;
      order.setMaturityDate(date(order, NewOrderSingle::MATURITY_DATE, field));
      return true;
    case 167:
      order.setSecurityType(text(order, NewOrderSingle::SECURITY_TYPE, field));
      return true;
    case 207:
      order.setSecurityExchange(text(order, NewOrderSingle::SECURITY_EXCHANGE, field));
      return true;
    case 54:
      order.setSide(character(order, NewOrderSingle::SIDE, field));
      return true;
    case 60:
      order.setTransactTime(timestamp(order, NewOrderSingle::TRANSACT_TIME, field));
      return true;
    case 38:
      order.setOrderQty(integer(order, NewOrderSingle::ORDER_QTY, field));
      return true;
    case 40:
      order.setOrdType(character(order, NewOrderSingle::ORD_TYPE, field));
      return true;
    case 44:
      order.setPrice(number(order, NewOrderSingle::PRICE, field));
      return true;
    case 15:
      order.setCurrency(text(order, NewOrderSingle::CURRENCY, field));
      return true;
    case 59:
      order.setTimeInForce(character(order, NewOrderSingle::TIME_IN_FORCE, field));
      return true;
    case 528:
      if (!is44()) return false;
      order.setOrderCapacity(character(order, NewOrderSingle::ORDER_CAPACITY, field));
      return true;
    case 64:
      order.setSettlDate(date(order, NewOrderSingle::SETTL_DATE, field));
      return true;
    case 75:
      order.setTradeDate(date(order, NewOrderSingle::TRADE_DATE, field));
      return true;
    case 58:
      order.setText(text(order, NewOrderSingle::TEXT, field));
      return true;
    case 95:
      order.setRawData(data(order, NewOrderSingle::RAW_DATA, field, 96, tokenizer));
      return true;
    case 78:
      takePortions(order.getAllocs(), field, {79, 80}, tokenizer);
      return true;
    case 453:
      if (!is44()) return false;
      takeParties(order.getParties(), field, {448, 447, 452}, tokenizer);
      return true;
    default:
      return false;
  }
}

void NewOrderSingleParser::checkBody(DataObject& body) {
  auto* const order = static_cast<NewOrderSingle*>(&body);
  assertNotNull(order, NewOrderSingle::CL_ORD_ID, 11);
  if (!is44()) assertNotNull(order, NewOrderSingle::HANDL_INST, 21);
  assertNotNull(order, NewOrderSingle::SYMBOL, 55);
  assertNotNull(order, NewOrderSingle::SIDE, 54);
  assertNotNull(order, NewOrderSingle::TRANSACT_TIME, 60);
  assertNotNull(order, NewOrderSingle::ORDER_QTY, 38);
  assertNotNull(order, NewOrderSingle::ORD_TYPE, 40);
}

}  // namespace orders
