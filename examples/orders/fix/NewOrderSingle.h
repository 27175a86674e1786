#pragma once

#include "AbstractDataObject.h"
#include "BigInteger.h"
#include "Binary.h"
#include "date/DateTime.h"
#include "orders/Group.h"
#include "orders/Party.h"
#include "orders/Portion.h"

namespace orders {

/// The body of an order, message type D. Fields are named as FIX 4.4 names them.
class NewOrderSingle : public zarvik::AbstractDataObject {
 public:
  enum : int {
    CL_ORD_ID,
    ACCOUNT,
    HANDL_INST,
    SYMBOL,
    SECURITY_ID,
    SECURITY_ID_SOURCE,
    MATURITY_DATE,
    SECURITY_TYPE,
    SECURITY_EXCHANGE,
    SIDE,
    TRANSACT_TIME,
    ORDER_QTY,
    ORD_TYPE,
    PRICE,
    CURRENCY,
    TIME_IN_FORCE,
    ORDER_CAPACITY,
    SETTL_DATE,
    TRADE_DATE,
    TEXT,
    RAW_DATA,
    ALLOCS,
    PARTIES,
    FIELD_COUNT
  };

  explicit NewOrderSingle(zarvik::DataObjectSection* parent = nullptr);
  NewOrderSingle(const NewOrderSingle& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent),
        values(other.values),
        allocs(other.allocs, this),
        parties(other.parties, this) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new NewOrderSingle(*this, nullptr); }
  void reset() override;
  zarvik::zkstring getRootXMLTag() override { return zarvik::zkstringliteral("NewOrderSingle"); }
  zarvik::DataObject* createSectionElement(const zarvik::zkstring& sectionName,
                                           zarvik::DataObjectSection* section) const override;

  const zarvik::zkstring& getClOrdID() const { return ensureNotNull(CL_ORD_ID), values.clOrdID; }
  void setClOrdID(const zarvik::zkstring& value) { setNotNull(CL_ORD_ID), values.clOrdID = value; }
  const zarvik::zkstring& getAccount() const { return ensureNotNull(ACCOUNT), values.account; }
  void setAccount(const zarvik::zkstring& value) { setNotNull(ACCOUNT), values.account = value; }
  void setAccountNumber(const zarvik::BigInteger& value) { setNotNull(ACCOUNT), value.toString(values.account); }
  char getHandlInst() const { return ensureNotNull(HANDL_INST), values.handlInst; }
  void setHandlInst(char value) { setNotNull(HANDL_INST), values.handlInst = value; }
  const zarvik::zkstring& getSymbol() const { return ensureNotNull(SYMBOL), values.symbol; }
  void setSymbol(const zarvik::zkstring& value) { setNotNull(SYMBOL), values.symbol = value; }
  const zarvik::zkstring& getSecurityID() const { return ensureNotNull(SECURITY_ID), values.securityID; }
  void setSecurityID(const zarvik::zkstring& value) { setNotNull(SECURITY_ID), values.securityID = value; }
  const zarvik::zkstring& getSecurityIDSource() const {
    return ensureNotNull(SECURITY_ID_SOURCE), values.securityIDSource;
  }
  void setSecurityIDSource(const zarvik::zkstring& value) {
    setNotNull(SECURITY_ID_SOURCE), values.securityIDSource = value;
  }
  const zarvik::DateTime& getMaturityDate() const { return ensureNotNull(MATURITY_DATE), values.maturityDate; }
  void setMaturityDate(const zarvik::DateTime& value) { setNotNull(MATURITY_DATE), values.maturityDate = value; }
  const zarvik::zkstring& getSecurityType() const { return ensureNotNull(SECURITY_TYPE), values.securityType; }
  void setSecurityType(const zarvik::zkstring& value) { setNotNull(SECURITY_TYPE), values.securityType = value; }
  const zarvik::zkstring& getSecurityExchange() const {
    return ensureNotNull(SECURITY_EXCHANGE), values.securityExchange;
  }
  void setSecurityExchange(const zarvik::zkstring& value) {
    setNotNull(SECURITY_EXCHANGE), values.securityExchange = value;
  }
  char getSide() const { return ensureNotNull(SIDE), values.side; }
  void setSide(char value) { setNotNull(SIDE), values.side = value; }
  const zarvik::DateTime& getTransactTime() const { return ensureNotNull(TRANSACT_TIME), values.transactTime; }
  void setTransactTime(const zarvik::DateTime& value) { setNotNull(TRANSACT_TIME), values.transactTime = value; }
  int getOrderQty() const { return ensureNotNull(ORDER_QTY), values.orderQty; }
  void setOrderQty(int value) { setNotNull(ORDER_QTY), values.orderQty = value; }
  char getOrdType() const { return ensureNotNull(ORD_TYPE), values.ordType; }
  void setOrdType(char value) { setNotNull(ORD_TYPE), values.ordType = value; }
  double getPrice() const { return ensureNotNull(PRICE), values.price; }
  void setPrice(double value) { setNotNull(PRICE), values.price = value; }
  const zarvik::zkstring& getCurrency() const { return ensureNotNull(CURRENCY), values.currency; }
  void setCurrency(const zarvik::zkstring& value) { setNotNull(CURRENCY), values.currency = value; }
  char getTimeInForce() const { return ensureNotNull(TIME_IN_FORCE), values.timeInForce; }
  void setTimeInForce(char value) { setNotNull(TIME_IN_FORCE), values.timeInForce = value; }
  char getOrderCapacity() const { return ensureNotNull(ORDER_CAPACITY), values.orderCapacity; }
  void setOrderCapacity(char value) { setNotNull(ORDER_CAPACITY), values.orderCapacity = value; }
  const zarvik::DateTime& getSettlDate() const { return ensureNotNull(SETTL_DATE), values.settlDate; }
  void setSettlDate(const zarvik::DateTime& value) { setNotNull(SETTL_DATE), values.settlDate = value; }
  const zarvik::DateTime& getTradeDate() const { return ensureNotNull(TRADE_DATE), values.tradeDate; }
  void setTradeDate(const zarvik::DateTime& value) { setNotNull(TRADE_DATE), values.tradeDate = value; }
  const zarvik::zkstring& getText() const { return ensureNotNull(TEXT), values.text; }
  void setText(const zarvik::zkstring& value) { setNotNull(TEXT), values.text = value; }
  const zarvik::Binary& getRawData() const { return ensureNotNull(RAW_DATA), values.rawData; }
  void setRawData(const zarvik::Binary& value) { setNotNull(RAW_DATA), values.rawData = value; }
  Group<Portion>& getAllocs() { return allocs; }
  const Group<Portion>& getAllocs() const { return allocs; }
  Group<Party>& getParties() { return parties; }
  const Group<Party>& getParties() const { return parties; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring clOrdID;
    zarvik::zkstring account;
    char handlInst = 0;
    zarvik::zkstring symbol;
    zarvik::zkstring securityID;
    zarvik::zkstring securityIDSource;
    zarvik::DateTime maturityDate;
    zarvik::zkstring securityType;
    zarvik::zkstring securityExchange;
    char side = 0;
    zarvik::DateTime transactTime;
    int orderQty = 0;
    char ordType = 0;
    double price = 0;
    zarvik::zkstring currency;
    char timeInForce = 0;
    char orderCapacity = 0;
    zarvik::DateTime settlDate;
    zarvik::DateTime tradeDate;
    zarvik::zkstring text;
    zarvik::Binary rawData;
  };
  Values values;
  Group<Portion> allocs;
  Group<Party> parties;
};

}  // namespace orders
