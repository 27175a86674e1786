#include "orders/Order.h"

#include "Boxing.h"
#include "DataObjectMetaInfo.h"
#include "orders/Execution.h"
#include "orders/Instrument.h"
#include "orders/Leg.h"
#include "orders/Party.h"
#include "orders/Portion.h"

using namespace zarvik;

namespace orders {

DataObjectMetaInfo* Order::metaInfo() {
  static const char* const names[] = {
      "ID",         "Quantity", "Sequence", "Discount",  "Price",   "Side",     "Urgent",     "Signature",
      "Account",    "Notional", "Entered",  "TradeDate", "CutOff",  "Sent",     "Settlement", "MarketClose",
      "Instrument", "Legs",     "Currency", "Text",      "Parties", "Portions", "Executions", "SendingTime"};
  static const char* const types[] = {"String",   "Integer",     "Long",       "Float",      "Double",     "Character",
                                      "Boolean",  "Binary",      "BigInteger", "BigDecimal", "DateTime",   "DateOnly",
                                      "TimeOnly", "ISODateTime", "ISODate",    "ISOTime",    "DataObject", "Section",
                                      "String",   "String",      "Section",    "Section",    "Section",    "DateTime"};
  struct Info : DataObjectMetaInfo {
    Info() : DataObjectMetaInfo(zkstringliteral("Order"), names, types, FIELD_COUNT) {
      getSectionMetaInfo(INSTRUMENT)->init(Instrument::metaInfo(), 0, 1);
      getSectionMetaInfo(LEGS)->init(Leg::metaInfo(), 0, 10);
      getSectionMetaInfo(PARTIES)->init(Party::metaInfo(), 0, -1);
      getSectionMetaInfo(PORTIONS)->init(Portion::metaInfo(), 0, -1);
      getSectionMetaInfo(EXECUTIONS)->init(Execution::metaInfo(), 0, -1);
    }
  };
  static Info info;
  return &info;
}

Order::Order(DataObjectSection* parent) : AbstractDataObject(metaInfo(), values.flags, parent) {
  instrument.initialize(this, *metaInfo()->getSectionMetaInfo(INSTRUMENT));
  legs.initialize(this, *metaInfo()->getSectionMetaInfo(LEGS));
  parties.initialize(this, *metaInfo()->getSectionMetaInfo(PARTIES));
  portions.initialize(this, *metaInfo()->getSectionMetaInfo(PORTIONS));
  executions.initialize(this, *metaInfo()->getSectionMetaInfo(EXECUTIONS));
  setSectionsNotNull();
}

Order::Order(const Order& other, DataObjectSection* parent)
    : AbstractDataObject(other, values.flags, parent),
      values(other.values),
      instrument(other.instrument, this),
      legs(other.legs, this),
      parties(other.parties, this),
      portions(other.portions, this),
      executions(other.executions, this) {
  if (instrument.getElementCount() != 0) instrument.getElement(0)->setParentSection(&instrument);
}

void Order::reset() {
  AbstractDataObject::reset();
  instrument.clear();
  legs.clear();
  parties.clear();
  portions.clear();
  executions.clear();
  setSectionsNotNull();
}

void Order::setSectionsNotNull() {  // sections are never null, only empty
  for (const int section : {INSTRUMENT, LEGS, PARTIES, PORTIONS, EXECUTIONS}) setNotNull(section);
}

DataObject* Order::createSectionElement(const zkstring& sectionName, DataObjectSection* section) const {
  switch (metaInfo()->getFieldIndexIfExists(sectionName)) {
    case INSTRUMENT:
      return new Instrument(section);
    case LEGS:
      return new Leg(section);
    case PARTIES:
      return new Party(section);
    case PORTIONS:
      return new Portion(section);
    case EXECUTIONS:
      return new Execution(section);
    default:
      return AbstractDataObject::createSectionElement(sectionName, section);
  }
}

Instrument* Order::getInstrument() {
  if (instrument.getElementCount() == 0) instrument.addElement(new Instrument(&instrument));
  return static_cast<Instrument*>(instrument.getElement(0));
}

Object* Order::getField0(int index, Object* reuse) const {
  switch (index) {
    case ID:
      return box(values.id, reuse);
    case QUANTITY:
      return box(values.quantity, reuse);
    case SEQUENCE:
      return box(values.sequence, reuse);
    case DISCOUNT:
      return box(values.discount, reuse);
    case PRICE:
      return box(values.price, reuse);
    case SIDE:
      return box(values.side, reuse);
    case URGENT:
      return box(values.urgent, reuse);
    case SIGNATURE:
      return box(values.signature, reuse);
    case ACCOUNT:
      return box(values.account, reuse);
    case NOTIONAL:
      return box(values.notional, reuse);
    case ENTERED:
      return box(values.entered, reuse);
    case TRADE_DATE:
      return box(values.tradeDate, reuse);
    case CUT_OFF:
      return box(values.cutOff, reuse);
    case SENT:
      return box(values.sent, reuse);
    case SETTLEMENT:
      return box(values.settlement, reuse);
    case MARKET_CLOSE:
      return box(values.marketClose, reuse);
    case INSTRUMENT:
      return box(instrument, reuse);
    case LEGS:
      return box(legs, reuse);
    case CURRENCY:
      return box(values.currency, reuse);
    case TEXT:
      return box(values.text, reuse);
    case PARTIES:
      return box(parties, reuse);
    case PORTIONS:
      return box(portions, reuse);
    case EXECUTIONS:
      return box(executions, reuse);
    case SENDING_TIME:
      return box(values.sendingTime, reuse);
    default:
      return AbstractDataObject::getField0(index, reuse);
  }
}

void Order::setField0(int index, const Object* value) {
  switch (index) {
    case ID:
      return unbox(value, values.id);
    case QUANTITY:
      return unbox(value, values.quantity);
    case SEQUENCE:
      return unbox(value, values.sequence);
    case DISCOUNT:
      return unbox(value, values.discount);
    case PRICE:
      return unbox(value, values.price);
    case SIDE:
      return unbox(value, values.side);
    case URGENT:
      return unbox(value, values.urgent);
    case SIGNATURE:
      return unbox(value, values.signature);
    case ACCOUNT:
      return unbox(value, values.account);
    case NOTIONAL:
      return unbox(value, values.notional);
    case ENTERED:
      return unbox(value, values.entered);
    case TRADE_DATE:
      return unbox(value, values.tradeDate);
    case CUT_OFF:
      return unbox(value, values.cutOff);
    case SENT:
      return unbox(value, values.sent);
    case SETTLEMENT:
      return unbox(value, values.settlement);
    case MARKET_CLOSE:
      return unbox(value, values.marketClose);
    case INSTRUMENT:
      return unbox(value, instrument);
    case LEGS:
      return unbox(value, legs);
    case CURRENCY:
      return unbox(value, values.currency);
    case TEXT:
      return unbox(value, values.text);
    case PARTIES:
      return unbox(value, parties);
    case PORTIONS:
      return unbox(value, portions);
    case EXECUTIONS:
      return unbox(value, executions);
    case SENDING_TIME:
      return unbox(value, values.sendingTime);
    default:
      return AbstractDataObject::setField0(index, value);
  }
}

}  // namespace orders
