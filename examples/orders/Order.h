#pragma once

#include "AbstractDataObject.h"
#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "DataObjectSectionImpl.h"
#include "date/DateTime.h"
#include "orders/Group.h"

namespace orders {

class Execution;
class Instrument;
class Leg;
class Party;
class Portion;

/// The order as the house knows it, whatever format it came in, and what became of it, as far as that is known: the
/// normalised object of the cartridge. It has a field of every type that a value can be boxed as, a nested object and
/// groups.
class Order : public zarvik::AbstractDataObject {
 public:
  enum : int {
    ID,
    QUANTITY,
    SEQUENCE,
    DISCOUNT,
    PRICE,
    SIDE,
    URGENT,
    SIGNATURE,
    ACCOUNT,
    NOTIONAL,
    ENTERED,
    TRADE_DATE,
    CUT_OFF,
    SENT,
    SETTLEMENT,
    MARKET_CLOSE,
    INSTRUMENT,
    LEGS,
    CURRENCY,
    TEXT,
    PARTIES,
    PORTIONS,
    EXECUTIONS,
    SENDING_TIME,
    FIELD_COUNT
  };

  explicit Order(zarvik::DataObjectSection* parent = nullptr);
  Order(const Order& other, zarvik::DataObjectSection* parent);

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Order(*this, nullptr); }
  void reset() override;
  zarvik::zkstring getRootXMLTag() override { return zarvik::zkstringliteral("Order"); }
  zarvik::DataObject* createSectionElement(const zarvik::zkstring& sectionName,
                                           zarvik::DataObjectSection* section) const override;

  const zarvik::zkstring& getID() const { return ensureNotNull(ID), values.id; }
  void setID(const zarvik::zkstring& value) { setNotNull(ID), values.id = value; }
  int getQuantity() const { return ensureNotNull(QUANTITY), values.quantity; }
  void setQuantity(int value) { setNotNull(QUANTITY), values.quantity = value; }
  __int64 getSequence() const { return ensureNotNull(SEQUENCE), values.sequence; }
  void setSequence(__int64 value) { setNotNull(SEQUENCE), values.sequence = value; }
  float getDiscount() const { return ensureNotNull(DISCOUNT), values.discount; }
  void setDiscount(float value) { setNotNull(DISCOUNT), values.discount = value; }
  double getPrice() const { return ensureNotNull(PRICE), values.price; }
  void setPrice(double value) { setNotNull(PRICE), values.price = value; }
  char getSide() const { return ensureNotNull(SIDE), values.side; }
  void setSide(char value) { setNotNull(SIDE), values.side = value; }
  bool getUrgent() const { return ensureNotNull(URGENT), values.urgent; }
  void setUrgent(bool value) { setNotNull(URGENT), values.urgent = value; }
  const zarvik::Binary& getSignature() const { return ensureNotNull(SIGNATURE), values.signature; }
  void setSignature(const zarvik::Binary& value) { setNotNull(SIGNATURE), values.signature = value; }
  const zarvik::BigInteger& getAccount() const { return ensureNotNull(ACCOUNT), values.account; }
  void setAccount(const zarvik::BigInteger& value) { setNotNull(ACCOUNT), values.account = value; }
  const zarvik::BigDecimal& getNotional() const { return ensureNotNull(NOTIONAL), values.notional; }
  void setNotional(const zarvik::BigDecimal& value) { setNotNull(NOTIONAL), values.notional = value; }
  const zarvik::DateTime& getEntered() const { return ensureNotNull(ENTERED), values.entered; }
  void setEntered(const zarvik::DateTime& value) { setNotNull(ENTERED), values.entered = value; }
  const zarvik::DateTime& getTradeDate() const { return ensureNotNull(TRADE_DATE), values.tradeDate; }
  void setTradeDate(const zarvik::DateTime& value) { setNotNull(TRADE_DATE), values.tradeDate = value; }
  const zarvik::DateTime& getCutOff() const { return ensureNotNull(CUT_OFF), values.cutOff; }
  void setCutOff(const zarvik::DateTime& value) { setNotNull(CUT_OFF), values.cutOff = value; }
  const zarvik::ISODateTime& getSent() const { return ensureNotNull(SENT), values.sent; }
  void setSent(const zarvik::ISODateTime& value) { setNotNull(SENT), values.sent = value; }
  const zarvik::ISODateTime& getSettlement() const { return ensureNotNull(SETTLEMENT), values.settlement; }
  void setSettlement(const zarvik::ISODateTime& value) { setNotNull(SETTLEMENT), values.settlement = value; }
  const zarvik::ISODateTime& getMarketClose() const { return ensureNotNull(MARKET_CLOSE), values.marketClose; }
  void setMarketClose(const zarvik::ISODateTime& value) { setNotNull(MARKET_CLOSE), values.marketClose = value; }
  Instrument* getInstrument();  ///< stays the order's; made when it is first asked for
  Group<Leg>& getLegs() { return legs; }
  const zarvik::zkstring& getCurrency() const { return ensureNotNull(CURRENCY), values.currency; }
  void setCurrency(const zarvik::zkstring& value) { setNotNull(CURRENCY), values.currency = value; }
  const zarvik::zkstring& getText() const { return ensureNotNull(TEXT), values.text; }
  void setText(const zarvik::zkstring& value) { setNotNull(TEXT), values.text = value; }
  Group<Party>& getParties() { return parties; }
  Group<Portion>& getPortions() { return portions; }
  Group<Execution>& getExecutions() { return executions; }
  const zarvik::DateTime& getSendingTime() const { return ensureNotNull(SENDING_TIME), values.sendingTime; }
  void setSendingTime(const zarvik::DateTime& value) { setNotNull(SENDING_TIME), values.sendingTime = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  void setSectionsNotNull();

  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring id;
    int quantity = 0;
    __int64 sequence = 0;
    float discount = 0;
    double price = 0;
    char side = 0;
    bool urgent = false;
    zarvik::Binary signature;
    zarvik::BigInteger account;
    zarvik::BigDecimal notional;
    zarvik::DateTime entered;
    zarvik::DateTime tradeDate;
    zarvik::DateTime cutOff;
    zarvik::ISODateTime sent;
    zarvik::ISODateTime settlement;
    zarvik::ISODateTime marketClose;
    zarvik::zkstring currency;
    zarvik::zkstring text;
    zarvik::DateTime sendingTime;
  };
  Values values;
  zarvik::DataObjectSingleElementSectionImpl instrument;
  Group<Leg> legs;
  Group<Party> parties;
  Group<Portion> portions;
  Group<Execution> executions;
};

}  // namespace orders
