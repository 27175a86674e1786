#pragma once

#include "AbstractDataObject.h"

namespace orders {

/// What became of an order, as its venue tells.
class Execution : public zarvik::AbstractDataObject {
 public:
  enum : int {
    ORDER_ID,
    EXECUTION_ID,
    KIND,
    STATUS,
    LAST_QUANTITY,
    LAST_PRICE,
    OPEN,
    FILLED,
    AVERAGE_PRICE,
    FIELD_COUNT
  };

  explicit Execution(zarvik::DataObjectSection* parent = nullptr)
      : AbstractDataObject(metaInfo(), values.flags, parent) {}
  Execution(const Execution& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Execution(*this, nullptr); }

  const zarvik::zkstring& getOrderID() const { return ensureNotNull(ORDER_ID), values.orderID; }
  void setOrderID(const zarvik::zkstring& value) { setNotNull(ORDER_ID), values.orderID = value; }
  const zarvik::zkstring& getExecutionID() const { return ensureNotNull(EXECUTION_ID), values.executionID; }
  void setExecutionID(const zarvik::zkstring& value) { setNotNull(EXECUTION_ID), values.executionID = value; }
  char getKind() const { return ensureNotNull(KIND), values.kind; }
  void setKind(char value) { setNotNull(KIND), values.kind = value; }
  char getStatus() const { return ensureNotNull(STATUS), values.status; }
  void setStatus(char value) { setNotNull(STATUS), values.status = value; }
  int getLastQuantity() const { return ensureNotNull(LAST_QUANTITY), values.lastQuantity; }
  void setLastQuantity(int value) { setNotNull(LAST_QUANTITY), values.lastQuantity = value; }
  double getLastPrice() const { return ensureNotNull(LAST_PRICE), values.lastPrice; }
  void setLastPrice(double value) { setNotNull(LAST_PRICE), values.lastPrice = value; }
  int getOpen() const { return ensureNotNull(OPEN), values.open; }
  void setOpen(int value) { setNotNull(OPEN), values.open = value; }
  int getFilled() const { return ensureNotNull(FILLED), values.filled; }
  void setFilled(int value) { setNotNull(FILLED), values.filled = value; }
  double getAveragePrice() const { return ensureNotNull(AVERAGE_PRICE), values.averagePrice; }
  void setAveragePrice(double value) { setNotNull(AVERAGE_PRICE), values.averagePrice = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring orderID;
    zarvik::zkstring executionID;
    char kind = 0;
    char status = 0;
    int lastQuantity = 0;
    double lastPrice = 0;
    int open = 0;
    int filled = 0;
    double averagePrice = 0;
  };
  Values values;
};

}  // namespace orders
