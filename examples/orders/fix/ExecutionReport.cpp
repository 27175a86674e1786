#include "orders/fix/ExecutionReport.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* ExecutionReport::metaInfo() {
  static const char* const names[] = {
      "OrderID",   "ClOrdID",    "ExecID",           "ExecTransType", "ExecType",         "OrdStatus", "Account",
      "Symbol",    "SecurityID", "SecurityIDSource", "MaturityDate",  "SecurityExchange", "Side",      "OrderQty",
      "OrdType",   "Price",      "Currency",         "TimeInForce",   "OrderCapacity",    "LastQty",   "LastPx",
      "LastMkt",   "LeavesQty",  "CumQty",           "AvgPx",         "Commission",       "TradeDate", "TransactTime",
      "SettlDate", "Text",       "RawData",          "ContraBrokers", "Parties",          "Legs"};
  static const char* const types[] = {
      "String",    "String",   "String", "Character", "Character", "Character", "String", "String", "String",
      "String",    "DateOnly", "String", "Character", "Integer",   "Character", "Double", "String", "Character",
      "Character", "Integer",  "Double", "String",    "Integer",   "Integer",   "Double", "Double", "DateOnly",
      "DateTime",  "DateOnly", "String", "Binary",    "Section",   "Section",   "Section"};
  struct Info : DataObjectMetaInfo {
    Info() : DataObjectMetaInfo(zkstringliteral("ExecutionReport"), names, types, FIELD_COUNT) {
      getSectionMetaInfo(CONTRA_BROKERS)->init(Portion::metaInfo(), 0, -1);
      getSectionMetaInfo(PARTIES)->init(Party::metaInfo(), 0, -1);
      getSectionMetaInfo(LEGS)->init(Leg::metaInfo(), 0, 10);
    }
  };
  static Info info;
  return &info;
}

ExecutionReport::ExecutionReport(DataObjectSection* parent) : AbstractDataObject(metaInfo(), values.flags, parent) {
  contraBrokers.initialize(this, *metaInfo()->getSectionMetaInfo(CONTRA_BROKERS));
  parties.initialize(this, *metaInfo()->getSectionMetaInfo(PARTIES));
  legs.initialize(this, *metaInfo()->getSectionMetaInfo(LEGS));
  setNotNull(CONTRA_BROKERS);
  setNotNull(PARTIES);
  setNotNull(LEGS);
}

void ExecutionReport::reset() {
  AbstractDataObject::reset();
  contraBrokers.clear();
  parties.clear();
  legs.clear();
  setNotNull(CONTRA_BROKERS);
  setNotNull(PARTIES);
  setNotNull(LEGS);
}

DataObject* ExecutionReport::createSectionElement(const zkstring& sectionName, DataObjectSection* section) const {
  switch (metaInfo()->getFieldIndexIfExists(sectionName)) {
    case CONTRA_BROKERS:
      return new Portion(section);
    case PARTIES:
      return new Party(section);
    case LEGS:
      return new Leg(section);
    default:
      return AbstractDataObject::createSectionElement(sectionName, section);
  }
}

Object* ExecutionReport::getField0(int index, Object* reuse) const {
  switch (index) {
    case ORDER_ID:
      return box(values.orderID, reuse);
    case CL_ORD_ID:
      return box(values.clOrdID, reuse);
    case EXEC_ID:
      return box(values.execID, reuse);
    case EXEC_TRANS_TYPE:
      return box(values.execTransType, reuse);
    case EXEC_TYPE:
      return box(values.execType, reuse);
    case ORD_STATUS:
      return box(values.ordStatus, reuse);
    case ACCOUNT:
      return box(values.account, reuse);
    case SYMBOL:
      return box(values.symbol, reuse);
    case SECURITY_ID:
      return box(values.securityID, reuse);
    case SECURITY_ID_SOURCE:
      return box(values.securityIDSource, reuse);
    case MATURITY_DATE:
      return box(values.maturityDate, reuse);
    case SECURITY_EXCHANGE:
      return box(values.securityExchange, reuse);
    case SIDE:
      return box(values.side, reuse);
    case ORDER_QTY:
      return box(values.orderQty, reuse);
    case ORD_TYPE:
      return box(values.ordType, reuse);
    case PRICE:
      return box(values.price, reuse);
    case CURRENCY:
      return box(values.currency, reuse);
    case TIME_IN_FORCE:
      return box(values.timeInForce, reuse);
    case ORDER_CAPACITY:
      return box(values.orderCapacity, reuse);
    case LAST_QTY:
      return box(values.lastQty, reuse);
    case LAST_PX:
      return box(values.lastPx, reuse);
    case LAST_MKT:
      return box(values.lastMkt, reuse);
    case LEAVES_QTY:
      return box(values.leavesQty, reuse);
    case CUM_QTY:
      return box(values.cumQty, reuse);
    case AVG_PX:
      return box(values.avgPx, reuse);
    case COMMISSION:
      return box(values.commission, reuse);
    case TRADE_DATE:
      return box(values.tradeDate, reuse);
    case TRANSACT_TIME:
      return box(values.transactTime, reuse);
    case SETTL_DATE:
      return box(values.settlDate, reuse);
    case TEXT:
      return box(values.text, reuse);
    case RAW_DATA:
      return box(values.rawData, reuse);
    case CONTRA_BROKERS:
      return box(contraBrokers, reuse);
    case PARTIES:
      return box(parties, reuse);
    case LEGS:
      return box(legs, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void ExecutionReport::setField0(int index, const Object* value) {
  switch (index) {
    case ORDER_ID:
      return unbox(value, values.orderID);
    case CL_ORD_ID:
      return unbox(value, values.clOrdID);
    case EXEC_ID:
      return unbox(value, values.execID);
    case EXEC_TRANS_TYPE:
      return unbox(value, values.execTransType);
    case EXEC_TYPE:
      return unbox(value, values.execType);
    case ORD_STATUS:
      return unbox(value, values.ordStatus);
    case ACCOUNT:
      return unbox(value, values.account);
    case SYMBOL:
      return unbox(value, values.symbol);
    case SECURITY_ID:
      return unbox(value, values.securityID);
    case SECURITY_ID_SOURCE:
      return unbox(value, values.securityIDSource);
    case MATURITY_DATE:
      return unbox(value, values.maturityDate);
    case SECURITY_EXCHANGE:
      return unbox(value, values.securityExchange);
    case SIDE:
      return unbox(value, values.side);
    case ORDER_QTY:
      return unbox(value, values.orderQty);
    case ORD_TYPE:
      return unbox(value, values.ordType);
    case PRICE:
      return unbox(value, values.price);
    case CURRENCY:
      return unbox(value, values.currency);
    case TIME_IN_FORCE:
      return unbox(value, values.timeInForce);
    case ORDER_CAPACITY:
      return unbox(value, values.orderCapacity);
    case LAST_QTY:
      return unbox(value, values.lastQty);
    case LAST_PX:
      return unbox(value, values.lastPx);
    case LAST_MKT:
      return unbox(value, values.lastMkt);
    case LEAVES_QTY:
      return unbox(value, values.leavesQty);
    case CUM_QTY:
      return unbox(value, values.cumQty);
    case AVG_PX:
      return unbox(value, values.avgPx);
    case COMMISSION:
      return unbox(value, values.commission);
    case TRADE_DATE:
      return unbox(value, values.tradeDate);
    case TRANSACT_TIME:
      return unbox(value, values.transactTime);
    case SETTL_DATE:
      return unbox(value, values.settlDate);
    case TEXT:
      return unbox(value, values.text);
    case RAW_DATA:
      return unbox(value, values.rawData);
    case CONTRA_BROKERS:
      return unbox(value, contraBrokers);
    case PARTIES:
      return unbox(value, parties);
    case LEGS:
      return unbox(value, legs);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
