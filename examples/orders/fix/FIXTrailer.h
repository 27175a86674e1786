#pragma once

#include "AbstractDataObject.h"

namespace orders {

/// The end of a FIX message.
class FIXTrailer : public zarvik::AbstractDataObject {
 public:
  enum : int { CHECK_SUM, FIELD_COUNT };

  explicit FIXTrailer(zarvik::DataObjectSection* parent = nullptr)
      : AbstractDataObject(metaInfo(), values.flags, parent) {}
  FIXTrailer(const FIXTrailer& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new FIXTrailer(*this, nullptr); }

  const zarvik::zkstring& getCheckSum() const { return ensureNotNull(CHECK_SUM), values.checkSum; }
  void setCheckSum(const zarvik::zkstring& value) { setNotNull(CHECK_SUM), values.checkSum = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring checkSum;
  };
  Values values;
};

}  // namespace orders
