#include "orders/fix/ExecutionReportWriter.h"

#include "orders/As.h"
#include "orders/fix/ExecutionReport.h"

using namespace zarvik;

namespace orders {

void ExecutionReportWriter::writeData(DataObject* data, TransformContext& /*context*/) {
  auto& report = as<ExecutionReport>(data);
  require(report, ExecutionReport::ORDER_ID, 37);
  appendField("37", report.getOrderID());
  if (report.isNotNull(ExecutionReport::CL_ORD_ID)) appendField("11", report.getClOrdID());
  require(report, ExecutionReport::EXEC_ID, 17);
  appendField("17", report.getExecID());
  if (!is44()) {
    require(report, ExecutionReport::EXEC_TRANS_TYPE, 20);
    appendField("20", report.getExecTransType());
  }
  require(report, ExecutionReport::EXEC_TYPE, 150);
  appendField("150", report.getExecType());
  require(report, ExecutionReport::ORD_STATUS, 39);
  appendField("39", report.getOrdStatus());
  if (report.isNotNull(ExecutionReport::ACCOUNT)) appendField("1", report.getAccount());
  require(report, ExecutionReport::SYMBOL, 55);
  appendField("55", report.getSymbol());
  if (report.isNotNull(ExecutionReport::SECURITY_ID)) appendField("48", report.getSecurityID());
  if (report.isNotNull(ExecutionReport::SECURITY_ID_SOURCE)) appendField("22", report.getSecurityIDSource());
  if (is44() && report.isNotNull(ExecutionReport::MATURITY_DATE)) appendUTCDate("541", report.getMaturityDate());
  if (report.isNotNull(ExecutionReport::SECURITY_EXCHANGE)) appendField("207", report.getSecurityExchange());
  require(report, ExecutionReport::SIDE, 54);
  appendField("54", report.getSide());
  if (report.isNotNull(ExecutionReport::ORDER_QTY)) appendField("38", report.getOrderQty());
  if (report.isNotNull(ExecutionReport::ORD_TYPE)) appendField("40", report.getOrdType());
  if (report.isNotNull(ExecutionReport::PRICE)) appendField("44", report.getPrice());
  if (report.isNotNull(ExecutionReport::CURRENCY)) appendField("15", report.getCurrency());
  if (report.isNotNull(ExecutionReport::TIME_IN_FORCE)) appendField("59", report.getTimeInForce());
  if (is44() && report.isNotNull(ExecutionReport::ORDER_CAPACITY)) appendField("528", report.getOrderCapacity());
  if (report.isNotNull(ExecutionReport::LAST_QTY)) appendField("32", report.getLastQty());
  if (report.isNotNull(ExecutionReport::LAST_PX)) appendField("31", report.getLastPx());
  if (report.isNotNull(ExecutionReport::LAST_MKT)) appendField("30", report.getLastMkt());
  require(report, ExecutionReport::LEAVES_QTY, 151);
  appendField("151", report.getLeavesQty());
  require(report, ExecutionReport::CUM_QTY, 14);
  appendField("14", report.getCumQty());
  require(report, ExecutionReport::AVG_PX, 6);
  appendField("6", report.getAvgPx());
  if (report.isNotNull(ExecutionReport::COMMISSION)) appendField("12", report.getCommission());
  if (report.isNotNull(ExecutionReport::TRADE_DATE)) appendUTCDate("75", report.getTradeDate());
  if (report.isNotNull(ExecutionReport::TRANSACT_TIME)) appendUTCTimestamp("60", report.getTransactTime());
  if (report.isNotNull(ExecutionReport::SETTL_DATE)) appendUTCDate("64", report.getSettlDate());
  if (report.isNotNull(ExecutionReport::TEXT)) appendField("58", report.getText());
  if (report.isNotNull(ExecutionReport::RAW_DATA)) appendData("95", "96", report.getRawData());
  appendPortions("382", report.getContraBrokers(), "375", "437");
  if (!is44()) return;  // the groups below are new in it
  appendParties("453", report.getParties(), "448", "447", "452");
  appendLegs(report.getLegs());
}

void ExecutionReportWriter::appendLegs(const Group<Leg>& legs) {
  const int count = legs.getElementCount();
  if (count != 0) appendField("555", count);
  for (int i = 0; i < count; ++i) {
    Leg& leg = legs.at(i);
    appendField("600", leg.getSymbol());
    if (leg.isNotNull(Leg::RATIO)) appendField("623", leg.getRatio());
    appendParties("539", leg.getParties(), "524", "525", "538");
  }
}

}  // namespace orders
