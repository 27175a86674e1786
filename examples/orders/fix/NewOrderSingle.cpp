#include "orders/fix/NewOrderSingle.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* NewOrderSingle::metaInfo() {
  static const char* const names[] = {
      "ClOrdID",      "Account",      "HandlInst",        "Symbol",      "SecurityID",    "SecurityIDSource",
      "MaturityDate", "SecurityType", "SecurityExchange", "Side",        "TransactTime",  "OrderQty",
      "OrdType",      "Price",        "Currency",         "TimeInForce", "OrderCapacity", "SettlDate",
      "TradeDate",    "Text",         "RawData",          "Allocs",      "Parties"};
  static const char* const types[] = {"String",    "String", "Character", "String",    "String",    "String",
                                      "DateOnly",  "String", "String",    "Character", "DateTime",  "Integer",
                                      "Character", "Double", "String",    "Character", "Character", "DateOnly",
                                      "DateOnly",  "String", "Binary",    "Section",   "Section"};
  struct Info : DataObjectMetaInfo {
    Info() : DataObjectMetaInfo(zkstringliteral("NewOrderSingle"), names, types, FIELD_COUNT) {
      getSectionMetaInfo(ALLOCS)->init(Portion::metaInfo(), 0, -1);
      getSectionMetaInfo(PARTIES)->init(Party::metaInfo(), 0, -1);
    }
  };
  static Info info;
  return &info;
}

NewOrderSingle::NewOrderSingle(DataObjectSection* parent) : AbstractDataObject(metaInfo(), values.flags, parent) {
  allocs.initialize(this, *metaInfo()->getSectionMetaInfo(ALLOCS));
  parties.initialize(this, *metaInfo()->getSectionMetaInfo(PARTIES));
  setNotNull(ALLOCS);
  setNotNull(PARTIES);
}

void NewOrderSingle::reset() {
  AbstractDataObject::reset();
  allocs.clear();
  parties.clear();
  setNotNull(ALLOCS);
  setNotNull(PARTIES);
}

DataObject* NewOrderSingle::createSectionElement(const zkstring& sectionName, DataObjectSection* section) const {
  switch (metaInfo()->getFieldIndexIfExists(sectionName)) {
    case ALLOCS:
      return new Portion(section);
    case PARTIES:
      return new Party(section);
    default:
      return AbstractDataObject::createSectionElement(sectionName, section);
  }
}

Object* NewOrderSingle::getField0(int index, Object* reuse) const {
  switch (index) {
    case CL_ORD_ID:
      return box(values.clOrdID, reuse);
    case ACCOUNT:
      return box(values.account, reuse);
    case HANDL_INST:
      return box(values.handlInst, reuse);
    case SYMBOL:
      return box(values.symbol, reuse);
    case SECURITY_ID:
      return box(values.securityID, reuse);
    case SECURITY_ID_SOURCE:
      return box(values.securityIDSource, reuse);
    case MATURITY_DATE:
      return box(values.maturityDate, reuse);
    case SECURITY_TYPE:
      return box(values.securityType, reuse);
    case SECURITY_EXCHANGE:
      return box(values.securityExchange, reuse);
    case SIDE:
      return box(values.side, reuse);
    case TRANSACT_TIME:
      return box(values.transactTime, reuse);
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
    case SETTL_DATE:
      return box(values.settlDate, reuse);
    case TRADE_DATE:
      return box(values.tradeDate, reuse);
    case TEXT:
      return box(values.text, reuse);
    case RAW_DATA:
      return box(values.rawData, reuse);
    case ALLOCS:
      return box(allocs, reuse);
    case PARTIES:
      return box(parties, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void NewOrderSingle::setField0(int index, const Object* value) {
  switch (index) {
    case CL_ORD_ID:
      return unbox(value, values.clOrdID);
    case ACCOUNT:
      return unbox(value, values.account);
    case HANDL_INST:
      return unbox(value, values.handlInst);
    case SYMBOL:
      return unbox(value, values.symbol);
    case SECURITY_ID:
      return unbox(value, values.securityID);
    case SECURITY_ID_SOURCE:
      return unbox(value, values.securityIDSource);
    case MATURITY_DATE:
      return unbox(value, values.maturityDate);
    case SECURITY_TYPE:
      return unbox(value, values.securityType);
    case SECURITY_EXCHANGE:
      return unbox(value, values.securityExchange);
    case SIDE:
      return unbox(value, values.side);
    case TRANSACT_TIME:
      return unbox(value, values.transactTime);
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
    case SETTL_DATE:
      return unbox(value, values.settlDate);
    case TRADE_DATE:
      return unbox(value, values.tradeDate);
    case TEXT:
      return unbox(value, values.text);
    case RAW_DATA:
      return unbox(value, values.rawData);
    case ALLOCS:
      return unbox(value, allocs);
    case PARTIES:
      return unbox(value, parties);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
