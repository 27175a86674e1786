#include "orders/fix/NewOrderSingleParser.h"

#include "orders/fix/NewOrderSingle.h"

using namespace zarvik;

namespace orders {

DataObject* NewOrderSingleParser::createBody() const { return new NewOrderSingle; }

void NewOrderSingleParser::parseBody(DataObject& body, Tokenizer& tokenizer) {
  auto& order = static_cast<NewOrderSingle&>(body);
  Field field;
  while (tokenizer.next(field)) {
    switch (field.getTag()) {
      case 11:
        order.setClOrdID(text(order, NewOrderSingle::CL_ORD_ID, field));
        break;
      case 1:
        order.setAccount(text(order, NewOrderSingle::ACCOUNT, field));
        break;
      case 21:
        order.setHandlInst(character(order, NewOrderSingle::HANDL_INST, field));
        break;
      case 55:
        order.setSymbol(text(order, NewOrderSingle::SYMBOL, field));
        break;
      case 48:
        order.setSecurityID(text(order, NewOrderSingle::SECURITY_ID, field));
        break;
      case 22:
        order.setSecurityIDSource(text(order, NewOrderSingle::SECURITY_ID_SOURCE, field));
        break;
      case 541:
        if (!is44()) return tokenizer.pushBack(field);
        order.setMaturityDate(date(order, NewOrderSingle::MATURITY_DATE, field));
        break;
      case 167:
        order.setSecurityType(text(order, NewOrderSingle::SECURITY_TYPE, field));
        break;
      case 207:
        order.setSecurityExchange(text(order, NewOrderSingle::SECURITY_EXCHANGE, field));
        break;
      case 54:
        order.setSide(character(order, NewOrderSingle::SIDE, field));
        break;
      case 60:
        order.setTransactTime(timestamp(order, NewOrderSingle::TRANSACT_TIME, field));
        break;
      case 38:
        order.setOrderQty(integer(order, NewOrderSingle::ORDER_QTY, field));
        break;
      case 40:
        order.setOrdType(character(order, NewOrderSingle::ORD_TYPE, field));
        break;
      case 44:
        order.setPrice(number(order, NewOrderSingle::PRICE, field));
        break;
      case 15:
        order.setCurrency(text(order, NewOrderSingle::CURRENCY, field));
        break;
      case 59:
        order.setTimeInForce(character(order, NewOrderSingle::TIME_IN_FORCE, field));
        break;
      case 528:
        if (!is44()) return tokenizer.pushBack(field);
        order.setOrderCapacity(character(order, NewOrderSingle::ORDER_CAPACITY, field));
        break;
      case 64:
        order.setSettlDate(date(order, NewOrderSingle::SETTL_DATE, field));
        break;
      case 75:
        order.setTradeDate(date(order, NewOrderSingle::TRADE_DATE, field));
        break;
      case 58:
        order.setText(text(order, NewOrderSingle::TEXT, field));
        break;
      case 95:
        order.setRawData(data(order, NewOrderSingle::RAW_DATA, field, 96, tokenizer));
        break;
      case 78:
        takePortions(order.getAllocs(), field, {79, 80}, tokenizer);
        break;
      case 453:
        if (!is44()) return tokenizer.pushBack(field);
        takeParties(order.getParties(), field, {448, 447, 452}, tokenizer);
        break;
      default:
        if (!isUserDefined(field)) return tokenizer.pushBack(field);
    }
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
