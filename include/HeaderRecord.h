#pragma once

#include <array>

#include "AbstractDataObject.h"
#include "Boxing.h"

namespace zarvik {

/// The record of a message's header: `FieldCount` fields, each a text, or a whole number where its bit in `Numbers` is
/// set. Field 0 is the name of the format, there from the beginning.
///
/// Self is the class that derives from this. It supplies a static `metaInfo()`, its accessors by way of `text`,
/// `setText`, `number` and `setNumber`, and `throwOutOfBounds`. Copies have the values, and no parent.
template <class Self, int FieldCount, unsigned int Numbers>
class HeaderRecord : public AbstractDataObject {
 public:
  void init() {}  ///< there is nothing to prepare
  Object* clone() const override { return new Self(static_cast<const Self&>(*this)); }

 protected:
  explicit HeaderRecord(const zkstring& format) : AbstractDataObject(Self::metaInfo(), values.flags, nullptr) {
    setText(0, format);
  }
  HeaderRecord(const HeaderRecord& other)
      : Object(), AbstractDataObject(other, values.flags, nullptr), values(other.values) {}
  HeaderRecord& operator=(const HeaderRecord& other) {
    values = other.values;
    return *this;
  }

  const zkstring& text(int index) const {
    ensureNotNull(index);
    return values.texts[static_cast<unsigned int>(index)];
  }
  void setText(int index, const zkstring& value) {
    setNotNull(index);
    values.texts[static_cast<unsigned int>(index)] = value;
  }
  /// Has `write` write the text anew, in the block that it has: write(zkstring& out).
  template <class Write>
  void writeText(int index, Write write) {
    write(values.texts[static_cast<unsigned int>(index)]);
    setNotNull(index);
  }
  int number(int index) const {
    ensureNotNull(index);
    return values.numbers[static_cast<unsigned int>(index)];
  }
  void setNumber(int index, int value) {
    setNotNull(index);
    values.numbers[static_cast<unsigned int>(index)] = value;
  }

  /// The text of the field, empty for null; throws FieldNotFoundException for an unknown name.
  zkstring textByName(const zkstring& name) const {
    const SmartPtr<Object> field(getField(name));
    return field.isNull() ? zkstring() : field->toString();
  }

  using AbstractDataObject::getField0;
  Object* getField0(int index, Object* reuse) const override {
    const auto place = checked(index);
    return isNumber(place) ? box(values.numbers[place], reuse) : box(values.texts[place], reuse);
  }
  void setField0(int index, const Object* value) override {
    const auto place = checked(index);
    if (isNumber(place)) return unbox(value, values.numbers[place]);
    unbox(value, values.texts[place]);
  }

 private:
  [[noreturn]] virtual void throwOutOfBounds(int index) const = 0;

  static bool isNumber(unsigned int index) { return (Numbers >> index & 1) != 0; }
  unsigned int checked(int index) const {
    if (index < 0 || index >= FieldCount) throwOutOfBounds(index);
    return static_cast<unsigned int>(index);
  }

  struct Values {
    bool flags[FieldCount] = {};
    std::array<zkstring, FieldCount> texts;
    std::array<int, FieldCount> numbers{};
  };
  Values values;
};

}  // namespace zarvik
