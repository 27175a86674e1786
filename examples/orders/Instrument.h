#pragma once

#include "AbstractDataObject.h"
#include "date/DateTime.h"

namespace orders {

/// What is traded.
class Instrument : public zarvik::AbstractDataObject {
 public:
  enum : int { SYMBOL, MATURITY, ISIN, FIELD_COUNT };

  explicit Instrument(zarvik::DataObjectSection* parent = nullptr)
      : AbstractDataObject(metaInfo(), values.flags, parent) {}
  Instrument(const Instrument& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Instrument(*this, nullptr); }

  const zarvik::zkstring& getSymbol() const { return ensureNotNull(SYMBOL), values.symbol; }
  void setSymbol(const zarvik::zkstring& value) { setNotNull(SYMBOL), values.symbol = value; }
  const zarvik::DateTime& getMaturity() const { return ensureNotNull(MATURITY), values.maturity; }
  void setMaturity(const zarvik::DateTime& value) { setNotNull(MATURITY), values.maturity = value; }
  const zarvik::zkstring& getISIN() const { return ensureNotNull(ISIN), values.isin; }
  void setISIN(const zarvik::zkstring& value) { setNotNull(ISIN), values.isin = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring symbol;
    zarvik::DateTime maturity;
    zarvik::zkstring isin;
  };
  Values values;
};

}  // namespace orders
