#pragma once

#include "AbstractDataObject.h"

namespace orders {

/// Someone with a role in an order or in a leg of it: the least that a record can be.
class Party : public zarvik::AbstractDataObject {
 public:
  enum : int { ID, ROLE, SOURCE, FIELD_COUNT };

  explicit Party(zarvik::DataObjectSection* parent = nullptr) : AbstractDataObject(metaInfo(), values.flags, parent) {}
  Party(const Party& other, zarvik::DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent), values(other.values) {}

  static zarvik::DataObjectMetaInfo* metaInfo();
  zarvik::Object* clone() const override { return new Party(*this, nullptr); }

  const zarvik::zkstring& getID() const { return ensureNotNull(ID), values.id; }
  void setID(const zarvik::zkstring& value) { setNotNull(ID), values.id = value; }
  int getRole() const { return ensureNotNull(ROLE), values.role; }
  void setRole(int value) { setNotNull(ROLE), values.role = value; }
  char getSource() const { return ensureNotNull(SOURCE), values.source; }  ///< whose code the ID is
  void setSource(char value) { setNotNull(SOURCE), values.source = value; }

 protected:
  using AbstractDataObject::getField0;
  zarvik::Object* getField0(int index, zarvik::Object* reuse) const override;
  void setField0(int index, const zarvik::Object* value) override;

 private:
  struct Values {
    bool flags[FIELD_COUNT] = {};
    zarvik::zkstring id;
    int role = 0;
    char source = 0;
  };
  Values values;
};

}  // namespace orders
