#pragma once

#include "AbstractDataObject.h"

namespace orders {

/// A part of a quantity and whose it is: an account to allocate to, or a counterparty of a trade.
class Portion : public zarvik::AbstractDataObject {
 public:
  enum : int { ID, QUANTITY, FIELD_COUNT };

  explicit Portion(zarvik::DataObjectSection* parent = nullptr)
      : AbstractDataObject(metaInfo(), values.flags, parent) {}
  Portion(const Portion& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Portion(*this, nullptr); }

  const zarvik::zkstring& getID() const { return ensureNotNull(ID), values.id; }
  void setID(const zarvik::zkstring& value) { setNotNull(ID), values.id = value; }
  int getQuantity() const { return ensureNotNull(QUANTITY), values.quantity; }
  void setQuantity(int value) { setNotNull(QUANTITY), values.quantity = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring id;
    int quantity = 0;
  };
  Values values;
};

}  // namespace orders
