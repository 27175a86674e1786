#pragma once

#include "AbstractDataObject.h"
#include "orders/Group.h"

namespace orders {

class Party;

/// One leg of an order, with a group of its own inside.
class Leg : public zarvik::AbstractDataObject {
 public:
  enum : int { SYMBOL, RATIO, PARTIES, FIELD_COUNT };

  explicit Leg(zarvik::DataObjectSection* parent = nullptr);
  Leg(const Leg& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values), parties(other.parties, this) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Leg(*this, nullptr); }
  void reset() override;
  zarvik::DataObject* createSectionElement(const zarvik::zkstring& sectionName,
                                           zarvik::DataObjectSection* section) const override;

  const zarvik::zkstring& getSymbol() const { return ensureNotNull(SYMBOL), values.symbol; }
  void setSymbol(const zarvik::zkstring& value) { setNotNull(SYMBOL), values.symbol = value; }
  int getRatio() const { return ensureNotNull(RATIO), values.ratio; }
  void setRatio(int value) { setNotNull(RATIO), values.ratio = value; }
  Group<Party>& getParties() { return parties; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring symbol;
    int ratio = 0;
  };
  Values values;
  Group<Party> parties;
};

}  // namespace orders
