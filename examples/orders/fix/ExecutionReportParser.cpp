#include "orders/fix/ExecutionReportParser.h"

#include "orders/fix/ExecutionReport.h"

using namespace zarvik;

namespace orders {

DataObject* ExecutionReportParser::createBody() const { return new ExecutionReport; }

void ExecutionReportParser::parseBody(DataObject& body, Tokenizer& tokenizer) {
  auto& report = static_cast<ExecutionReport&>(body);
  Field field;
  while (tokenizer.next(field)) {
    switch (field.getTag()) {
      case 37:
        report.setOrderID(text(report, ExecutionReport::ORDER_ID, field));
        break;
      case 11:
        report.setClOrdID(text(report, ExecutionReport::CL_ORD_ID, field));
        break;
      case 17:
        report.setExecID(text(report, ExecutionReport::EXEC_ID, field));
        break;
      case 20:
        if (is44()) return tokenizer.pushBack(field);
        report.setExecTransType(character(report, ExecutionReport::EXEC_TRANS_TYPE, field));
        break;
      case 150:
        report.setExecType(character(report, ExecutionReport::EXEC_TYPE, field));
        break;
      case 39:
        report.setOrdStatus(character(report, ExecutionReport::ORD_STATUS, field));
        break;
      case 1:
        report.setAccount(text(report, ExecutionReport::ACCOUNT, field));
        break;
      case 55:
        report.setSymbol(text(report, ExecutionReport::SYMBOL, field));
        break;
      case 48:
        report.setSecurityID(text(report, ExecutionReport::SECURITY_ID, field));
        break;
      case 22:
        report.setSecurityIDSource(text(report, ExecutionReport::SECURITY_ID_SOURCE, field));
        break;
      case 541:
        if (!is44()) return tokenizer.pushBack(field);
        report.setMaturityDate(date(report, ExecutionReport::MATURITY_DATE, field));
        break;
      case 207:
        report.setSecurityExchange(text(report, ExecutionReport::SECURITY_EXCHANGE, field));
        break;
      case 54:
        report.setSide(character(report, ExecutionReport::SIDE, field));
        break;
      case 38:
        report.setOrderQty(integer(report, ExecutionReport::ORDER_QTY, field));
        break;
      case 40:
        report.setOrdType(character(report, ExecutionReport::ORD_TYPE, field));
        break;
      case 44:
        report.setPrice(number(report, ExecutionReport::PRICE, field));
        break;
      case 15:
        report.setCurrency(text(report, ExecutionReport::CURRENCY, field));
        break;
      case 59:
        report.setTimeInForce(character(report, ExecutionReport::TIME_IN_FORCE, field));
        break;
      case 528:
        if (!is44()) return tokenizer.pushBack(field);
        report.setOrderCapacity(character(report, ExecutionReport::ORDER_CAPACITY, field));
        break;
      case 32:
        report.setLastQty(integer(report, ExecutionReport::LAST_QTY, field));
        break;
      case 31:
        report.setLastPx(number(report, ExecutionReport::LAST_PX, field));
        break;
      case 30:
        report.setLastMkt(text(report, ExecutionReport::LAST_MKT, field));
        break;
      case 151:
        report.setLeavesQty(integer(report, ExecutionReport::LEAVES_QTY, field));
        break;
      case 14:
        report.setCumQty(integer(report, ExecutionReport::CUM_QTY, field));
        break;
      case 6:
        report.setAvgPx(number(report, ExecutionReport::AVG_PX, field));
        break;
      case 12:
        report.setCommission(number(report, ExecutionReport::COMMISSION, field));
        break;
      case 75:
        report.setTradeDate(date(report, ExecutionReport::TRADE_DATE, field));
        break;
      case 60:
        report.setTransactTime(timestamp(report, ExecutionReport::TRANSACT_TIME, field));
        break;
      case 64:
        report.setSettlDate(date(report, ExecutionReport::SETTL_DATE, field));
        break;
      case 58:
        report.setText(text(report, ExecutionReport::TEXT, field));
        break;
      case 95:
        report.setRawData(data(report, ExecutionReport::RAW_DATA, field, 96, tokenizer));
        break;
      case 382:
        takePortions(report.getContraBrokers(), field, {375, 437}, tokenizer);
        break;
      case 453:
        if (!is44()) return tokenizer.pushBack(field);
        takeParties(report.getParties(), field, {448, 447, 452}, tokenizer);
        break;
      case 555:
        if (!is44()) return tokenizer.pushBack(field);
        takeLegs(report.getLegs(), field, tokenizer);
        break;
      default:
        if (!isUserDefined(field)) return tokenizer.pushBack(field);
    }
  }
}

void ExecutionReportParser::takeLegs(Group<Leg>& legs, Field& field, Tokenizer& tokenizer) {
  takeGroup(legs, field, 600, tokenizer, [&](Leg& leg) {
    switch (field.getTag()) {
      case 600:
        leg.setSymbol(text(leg, Leg::SYMBOL, field));
        return true;
      case 623:
        leg.setRatio(integer(leg, Leg::RATIO, field));
        return true;
      case 539:
        takeParties(leg.getParties(), field, {524, 525, 538}, tokenizer);
        return true;
      default:
        return false;
    }
  });
}

void ExecutionReportParser::checkBody(DataObject& body) {
  auto* const report = static_cast<ExecutionReport*>(&body);
  assertNotNull(report, ExecutionReport::ORDER_ID, 37);
  assertNotNull(report, ExecutionReport::EXEC_ID, 17);
  if (!is44()) assertNotNull(report, ExecutionReport::EXEC_TRANS_TYPE, 20);
  assertNotNull(report, ExecutionReport::EXEC_TYPE, 150);
  assertNotNull(report, ExecutionReport::ORD_STATUS, 39);
  assertNotNull(report, ExecutionReport::SYMBOL, 55);
  assertNotNull(report, ExecutionReport::SIDE, 54);
  assertNotNull(report, ExecutionReport::LEAVES_QTY, 151);
  assertNotNull(report, ExecutionReport::CUM_QTY, 14);
  assertNotNull(report, ExecutionReport::AVG_PX, 6);
  assertConstraints(report, ExecutionReport::LEGS, 555);  // as many as an order takes
}

}  // namespace orders
