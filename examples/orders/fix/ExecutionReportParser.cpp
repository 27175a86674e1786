#include "orders/fix/ExecutionReportParser.h"

#include "orders/fix/ExecutionReport.h"

using namespace zarvik;

namespace orders {

DataObject* ExecutionReportParser::createBody() const { return new ExecutionReport; }

bool ExecutionReportParser::takeField(DataObject& body, Field& field, Tokenizer& tokenizer) {
  auto& report = static_cast<ExecutionReport&>(body);
  switch (field.getTag()) {
    case 37:
      report.setOrderID(text(report, ExecutionReport::ORDER_ID, field));
      return true;
    case 11:
      report.setClOrdID(text(report, ExecutionReport::CL_ORD_ID, field));
      return true;
    case 17:
      report.setExecID(text(report, ExecutionReport::EXEC_ID, field));
      return true;
    case 20:
      if (is44()) return false;
      report.setExecTransType(character(report, ExecutionReport::EXEC_TRANS_TYPE, field));
      return true;
    case 150:
      report.setExecType(character(report, ExecutionReport::EXEC_TYPE, field));
      return true;
    case 39:
      report.setOrdStatus(character(report, ExecutionReport::ORD_STATUS, field));
      return true;
    case 1:
      report.setAccount(text(report, ExecutionReport::ACCOUNT, field));
      return true;
    case 55:
      report.setSymbol(text(report, ExecutionReport::SYMBOL, field));
      return true;
    case 48:
      report.setSecurityID(text(report, ExecutionReport::SECURITY_ID, field));
      return true;
    case 22:
      report.setSecurityIDSource(text(report, ExecutionReport::SECURITY_ID_SOURCE, field));
      return true;
    case 541:
      if (!is44()) return false;
      report.setMaturityDate(date(report, ExecutionReport::MATURITY_DATE, field));
      return true;
    case 207:
      report.setSecurityExchange(text(report, ExecutionReport::SECURITY_EXCHANGE, field));
      return true;
    case 54:
      report.setSide(character(report, ExecutionReport::SIDE, field));
      return true;
    case 38:
      report.setOrderQty(integer(report, ExecutionReport::ORDER_QTY, field));
      return true;
    case 40:
      report.setOrdType(character(report, ExecutionReport::ORD_TYPE, field));
      return true;
    case 44:
      report.setPrice(number(report, ExecutionReport::PRICE, field));
      return true;
    case 15:
      report.setCurrency(text(report, ExecutionReport::CURRENCY, field));
      return true;
    case 59:
      report.setTimeInForce(character(report, ExecutionReport::TIME_IN_FORCE, field));
      return true;
    case 528:
      if (!is44()) return false;
      report.setOrderCapacity(character(report, ExecutionReport::ORDER_CAPACITY, field));
      return true;
    case 32:
      report.setLastQty(integer(report, ExecutionReport::LAST_QTY, field));
      return true;
    case 31:
      report.setLastPx(number(report, ExecutionReport::LAST_PX, field));
      return true;
    case 30:
      report.setLastMkt(text(report, ExecutionReport::LAST_MKT, field));
      return true;
    case 151:
      report.setLeavesQty(integer(report, ExecutionReport::LEAVES_QTY, field));
      return true;
    case 14:
      report.setCumQty(integer(report, ExecutionReport::CUM_QTY, field));
      return true;
    case 6:
      report.setAvgPx(number(report, ExecutionReport::AVG_PX, field));
      return true;
    case 12:
      report.setCommission(number(report, ExecutionReport::COMMISSION, field));
      return true;
    case 75:
      report.setTradeDate(date(report, ExecutionReport::TRADE_DATE, field));
      return true;
    case 60:
      report.setTransactTime(timestamp(report, ExecutionReport::TRANSACT_TIME, field));
      return true;
    case 64:
      report.setSettlDate(date(report, ExecutionReport::SETTL_DATE, field));
      return true;
    case 58:
      report.setText(text(report, ExecutionReport::TEXT, field));
      return true;
    case 95:
      report.setRawData(data(report, ExecutionReport::RAW_DATA, field, 96, tokenizer));
      return true;
    case 382:
      takePortions(report.getContraBrokers(), field, {375, 437}, tokenizer);
      return true;
    case 453:
      if (!is44()) return false;
      takeParties(report.getParties(), field, {448, 447, 452}, tokenizer);
      return true;
    case 555:
      if (!is44()) return false;
      takeLegs(report.getLegs(), field, tokenizer);
      return true;
    default:
      return false;
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
}

}  // namespace orders
