#pragma once

#include "AbstractDataObject.h"
#include "BigInteger.h"
#include "Binary.h"
#include "date/DateTime.h"
#include "orders/Group.h"
#include "orders/Leg.h"
#include "orders/Party.h"
#include "orders/Portion.h"

namespace orders {

/// The body of an execution report, message type 8. Fields are named as FIX 4.4 names them.
class ExecutionReport : public zarvik::AbstractDataObject {
 public:
  enum : int {
    ORDER_ID,
    CL_ORD_ID,
    EXEC_ID,
    EXEC_TRANS_TYPE,
    EXEC_TYPE,
    ORD_STATUS,
    ACCOUNT,
    SYMBOL,
    SECURITY_ID,
    SECURITY_ID_SOURCE,
    MATURITY_DATE,
    SECURITY_EXCHANGE,
    SIDE,
    ORDER_QTY,
    ORD_TYPE,
    PRICE,
    CURRENCY,
    TIME_IN_FORCE,
    ORDER_CAPACITY,
    LAST_QTY,
    LAST_PX,
    LAST_MKT,
    LEAVES_QTY,
    CUM_QTY,
    AVG_PX,
    COMMISSION,
    TRADE_DATE,
    TRANSACT_TIME,
    SETTL_DATE,
    TEXT,
    RAW_DATA,
    CONTRA_BROKERS,
    PARTIES,
    LEGS,
    FIELD_COUNT
  };

  explicit ExecutionReport(zarvik::DataObjectSection* parent = nullptr);
  ExecutionReport(const ExecutionReport& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent),
        values(other.values),
        contraBrokers(other.contraBrokers, this),
        parties(other.parties, this),
        legs(other.legs, this) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new ExecutionReport(*this, nullptr); }
  void reset() override;
  zarvik::zkstring getRootXMLTag() override { return zarvik::zkstringliteral("ExecutionReport"); }
  zarvik::DataObject* createSectionElement(const zarvik::zkstring& sectionName,
                                           zarvik::DataObjectSection* section) const override;

  const zarvik::zkstring& getOrderID() const { return ensureNotNull(ORDER_ID), values.orderID; }
  void setOrderID(const zarvik::zkstring& value) { setNotNull(ORDER_ID), values.orderID = value; }
  const zarvik::zkstring& getClOrdID() const { return ensureNotNull(CL_ORD_ID), values.clOrdID; }
  void setClOrdID(const zarvik::zkstring& value) { setNotNull(CL_ORD_ID), values.clOrdID = value; }
  const zarvik::zkstring& getExecID() const { return ensureNotNull(EXEC_ID), values.execID; }
  void setExecID(const zarvik::zkstring& value) { setNotNull(EXEC_ID), values.execID = value; }
  char getExecTransType() const { return ensureNotNull(EXEC_TRANS_TYPE), values.execTransType; }
  void setExecTransType(char value) { setNotNull(EXEC_TRANS_TYPE), values.execTransType = value; }
  char getExecType() const { return ensureNotNull(EXEC_TYPE), values.execType; }
  void setExecType(char value) { setNotNull(EXEC_TYPE), values.execType = value; }
  char getOrdStatus() const { return ensureNotNull(ORD_STATUS), values.ordStatus; }
  void setOrdStatus(char value) { setNotNull(ORD_STATUS), values.ordStatus = value; }
  const zarvik::zkstring& getAccount() const { return ensureNotNull(ACCOUNT), values.account; }
  void setAccount(const zarvik::zkstring& value) { setNotNull(ACCOUNT), values.account = value; }
  void setAccountNumber(const zarvik::BigInteger& value) { setNotNull(ACCOUNT), value.toString(values.account); }
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
  const zarvik::zkstring& getSecurityExchange() const {
    return ensureNotNull(SECURITY_EXCHANGE), values.securityExchange;
  }
  void setSecurityExchange(const zarvik::zkstring& value) {
    setNotNull(SECURITY_EXCHANGE), values.securityExchange = value;
  }
  char getSide() const { return ensureNotNull(SIDE), values.side; }
  void setSide(char value) { setNotNull(SIDE), values.side = value; }
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
  int getLastQty() const { return ensureNotNull(LAST_QTY), values.lastQty; }
  void setLastQty(int value) { setNotNull(LAST_QTY), values.lastQty = value; }
  double getLastPx() const { return ensureNotNull(LAST_PX), values.lastPx; }
  void setLastPx(double value) { setNotNull(LAST_PX), values.lastPx = value; }
  const zarvik::zkstring& getLastMkt() const { return ensureNotNull(LAST_MKT), values.lastMkt; }
  void setLastMkt(const zarvik::zkstring& value) { setNotNull(LAST_MKT), values.lastMkt = value; }
  int getLeavesQty() const { return ensureNotNull(LEAVES_QTY), values.leavesQty; }
  void setLeavesQty(int value) { setNotNull(LEAVES_QTY), values.leavesQty = value; }
  int getCumQty() const { return ensureNotNull(CUM_QTY), values.cumQty; }
  void setCumQty(int value) { setNotNull(CUM_QTY), values.cumQty = value; }
  double getAvgPx() const { return ensureNotNull(AVG_PX), values.avgPx; }
  void setAvgPx(double value) { setNotNull(AVG_PX), values.avgPx = value; }
  double getCommission() const { return ensureNotNull(COMMISSION), values.commission; }
  void setCommission(double value) { setNotNull(COMMISSION), values.commission = value; }
  const zarvik::DateTime& getTradeDate() const { return ensureNotNull(TRADE_DATE), values.tradeDate; }
  void setTradeDate(const zarvik::DateTime& value) { setNotNull(TRADE_DATE), values.tradeDate = value; }
  const zarvik::DateTime& getTransactTime() const { return ensureNotNull(TRANSACT_TIME), values.transactTime; }
  void setTransactTime(const zarvik::DateTime& value) { setNotNull(TRANSACT_TIME), values.transactTime = value; }
  const zarvik::DateTime& getSettlDate() const { return ensureNotNull(SETTL_DATE), values.settlDate; }
  void setSettlDate(const zarvik::DateTime& value) { setNotNull(SETTL_DATE), values.settlDate = value; }
  const zarvik::zkstring& getText() const { return ensureNotNull(TEXT), values.text; }
  void setText(const zarvik::zkstring& value) { setNotNull(TEXT), values.text = value; }
  const zarvik::Binary& getRawData() const { return ensureNotNull(RAW_DATA), values.rawData; }
  void setRawData(const zarvik::Binary& value) { setNotNull(RAW_DATA), values.rawData = value; }
  Group<Portion>& getContraBrokers() { return contraBrokers; }
  const Group<Portion>& getContraBrokers() const { return contraBrokers; }
  Group<Party>& getParties() { return parties; }
  const Group<Party>& getParties() const { return parties; }
  Group<Leg>& getLegs() { return legs; }
  const Group<Leg>& getLegs() const { return legs; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring orderID;
    zarvik::zkstring clOrdID;
    zarvik::zkstring execID;
    char execTransType = 0;
    char execType = 0;
    char ordStatus = 0;
    zarvik::zkstring account;
    zarvik::zkstring symbol;
    zarvik::zkstring securityID;
    zarvik::zkstring securityIDSource;
    zarvik::DateTime maturityDate;
    zarvik::zkstring securityExchange;
    char side = 0;
    int orderQty = 0;
    char ordType = 0;
    double price = 0;
    zarvik::zkstring currency;
    char timeInForce = 0;
    char orderCapacity = 0;
    int lastQty = 0;
    double lastPx = 0;
    zarvik::zkstring lastMkt;
    int leavesQty = 0;
    int cumQty = 0;
    double avgPx = 0;
    double commission = 0;
    zarvik::DateTime tradeDate;
    zarvik::DateTime transactTime;
    zarvik::DateTime settlDate;
    zarvik::zkstring text;
    zarvik::Binary rawData;
  };
  Values values;
  Group<Portion> contraBrokers;
  Group<Party> parties;
  Group<Leg> legs;
};

}  // namespace orders
