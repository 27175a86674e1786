#pragma once

#include "GuardedCast.h"
#include "SectionObject.h"
#include "WrapperObjects.h"

namespace zarvik {

/// How a value of type T travels: the class of its box, and the setter and the getter of its kind.
template <class T>
struct Boxing;
template <>
struct Boxing<int> {
  using Box = IntObject;
  static constexpr auto set = &Object::setInt;
  static constexpr auto get = &Object::getInt;
};
template <>
struct Boxing<__int64> {
  using Box = LongObject;
  static constexpr auto set = &Object::setLong;
  static constexpr auto get = &Object::getLong;
};
template <>
struct Boxing<double> {
  using Box = DoubleObject;
  static constexpr auto set = &Object::setDouble;
  static constexpr auto get = &Object::getDouble;
};
template <>
struct Boxing<float> {
  using Box = FloatObject;
  static constexpr auto set = &Object::setFloat;
  static constexpr auto get = &Object::getFloat;
};
template <>
struct Boxing<char> {
  using Box = CharObject;
  static constexpr auto set = &Object::setCharacter;
  static constexpr auto get = &Object::getCharacter;
};
template <>
struct Boxing<bool> {
  using Box = BoolObject;
  static constexpr auto set = &Object::setBoolean;
  static constexpr auto get = &Object::getBoolean;
};
template <>
struct Boxing<BigInteger> {
  using Box = BigIntegerObject;
  static constexpr auto set = &Object::setBigInteger;
  static constexpr auto get = &Object::getBigInteger;
};
template <>
struct Boxing<BigDecimal> {
  using Box = BigDecimalObject;
  static constexpr auto set = &Object::setBigDecimal;
  static constexpr auto get = &Object::getBigDecimal;
};
template <>
struct Boxing<DateTime> {
  using Box = DateObject;
  static constexpr auto set = &Object::setDate;
  static constexpr auto get = &Object::getDate;
};
template <>
struct Boxing<ISODateTime> {
  using Box = ISODateObject;
  static constexpr auto set = &Object::setISODate;
  static constexpr auto get = &Object::getISODate;
};
template <>
struct Boxing<zkstring> {
  using Box = StringObject;
  static constexpr auto set = &Object::setString;
  static constexpr auto get = &Object::getString;
};
template <>
struct Boxing<Binary> {
  using Box = BinaryObject;
  static constexpr auto set = &Object::setBinary;
  static constexpr auto get = &Object::getBinary;
};

/// What `getField0` of a record is made of: puts the value into `reuse` by the setter of its kind and gives `reuse`
/// back, or gives a new box, which is the caller's, when `reuse` is null.
///
///     case PRICE: return box(price, reuse);
template <class T>
requires requires { typename Boxing<T>::Box; }
Object* box(const T& value, Object* reuse) {
  if (reuse == nullptr) return new typename Boxing<T>::Box(value);
  (reuse->*Boxing<T>::set)(value);
  return reuse;
}
/// A section travels as a reference to it.
inline Object* box(const DataObjectSection& section, Object* reuse) {
  if (reuse == nullptr) return new SectionObject(section);
  const SectionObject reference(section);
  reuse->setObject(&reference);
  return reuse;
}

/// What `setField0` of a record is made of: reads the value, which is not null, by the getter of the member's kind. A
/// value that does not offer the kind is a conversion failure, and the member keeps what it had.
///
///     case PRICE: return unbox(value, price);
template <class T>
requires requires { typename Boxing<T>::Box; }
void unbox(const Object* value, T& member) { member = (value->*Boxing<T>::get)(); }
/// Shares the elements of the section that `value` refers to, and becomes their parent.
inline void unbox(const Object* value, DataObjectSection& section) {
  DataObjectSection* const source = guardedCast<SectionObject>(value)->getSection();
  if (source != &section) DataObjectSection::assign(&section, source);
}

}  // namespace zarvik
