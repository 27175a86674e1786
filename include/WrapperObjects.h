#pragma once

#include <limits>
#include <type_traits>
#include <utility>

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "Object.h"
#include "date/DateTime.h"
#include "zkstring.h"

namespace zarvik {

/// A plain value boxed into an Object, so that a field value, a property or a list element can travel as `Object*`.
///
///     SmartPtr<Object> field(new IntObject(5));
///     field->setLong(7);
///     SmartPtr<Object> mine(field->clone());
///
/// Boxes are not counted: a SmartPtr to one is its sole owner, and a box is handed on by `clone()`, which the caller
/// owns. They share what the value shares and allocate nothing for it. A box offers its own kind alone, and the four
/// numbers one another's; it does not parse: asking a StringObject for its number is the conversion failure of Object.
class WrapperObject : public Object {};

/// A boxed number; each class can be read and written as any of the four kinds, by the language's casts: toward zero,
/// the low 32 bits of a long, a long to `float` by way of `double`. A `float` or `double` outside the range of a whole
/// number, and not-a-number, give its lowest value.
class NumberObject : public WrapperObject {
 public:
  int getInt() const override = 0;
  __int64 getLong() const override = 0;
  double getDouble() const override = 0;
  float getFloat() const override = 0;

  int intValue() const { return getInt(); }
  __int64 longValue() const { return getLong(); }
  double doubleValue() const { return getDouble(); }
  float floatValue() const { return getFloat(); }
};

/// What all boxes are made of: the value, its constructors and `clone`. Self is the class that derives from this, Base
/// the class that this derives from.
template <class Self, class Base, class T>
class Boxed : public Base {
 public:
  Boxed() = default;
  Boxed(T value) : value(std::move(value)) {}

  /// Numbers, `char` and `bool` come by value, all others by reference.
  std::conditional_t<std::is_arithmetic_v<T>, T, const T&> getValue() const { return value; }

  Object* clone() const override { return new Self(static_cast<const Self&>(*this)); }

 protected:
  T value{};
};

/// `value` as another of the four number types, by the rules told at NumberObject.
template <class To, class From>
constexpr To numberCast(From value) {
  using Limits = std::numeric_limits<To>;
  if constexpr (std::is_integral_v<To> && std::is_floating_point_v<From>) {
    constexpr double lowest = Limits::min();  // minus a power of two, so its negative is the first value too high
    const double wide = value;
    return wide > lowest - 1 && wide < -lowest ? static_cast<To>(wide) : Limits::min();
  } else if constexpr (std::is_same_v<To, float> && std::is_same_v<From, __int64>) {
    return static_cast<float>(static_cast<double>(value));
  } else {
    return static_cast<To>(value);
  }
}

/// The eight getters and setters that the four boxed numbers have in common.
template <class Self, class T>
class BoxedNumber : public Boxed<Self, NumberObject, T> {
 public:
  using Boxed<Self, NumberObject, T>::Boxed;

  int getInt() const override { return numberCast<int>(value); }
  void setInt(int number) override { value = numberCast<T>(number); }
  __int64 getLong() const override { return numberCast<__int64>(value); }
  void setLong(__int64 number) override { value = numberCast<T>(number); }
  double getDouble() const override { return numberCast<double>(value); }
  void setDouble(double number) override { value = numberCast<T>(number); }
  float getFloat() const override { return numberCast<float>(value); }
  void setFloat(float number) override { value = numberCast<T>(number); }

 protected:
  using Boxed<Self, NumberObject, T>::value;
};

class IntObject : public BoxedNumber<IntObject, int> {
 public:
  using BoxedNumber::BoxedNumber;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  void setObject(const Object* other) override;
};

class LongObject : public BoxedNumber<LongObject, __int64> {
 public:
  using BoxedNumber::BoxedNumber;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  void setObject(const Object* other) override;
};

class DoubleObject : public BoxedNumber<DoubleObject, double> {
 public:
  using BoxedNumber::BoxedNumber;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  void setObject(const Object* other) override;
};

class FloatObject : public BoxedNumber<FloatObject, float> {
 public:
  using BoxedNumber::BoxedNumber;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  void setObject(const Object* other) override;
};

class StringObject : public Boxed<StringObject, WrapperObject, zkstring> {
 public:
  using Boxed::Boxed;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  zkstring getString() const override { return value; }
  void setString(const zkstring& text) override { value = text; }
  void setObject(const Object* other) override;
};

class CharObject : public Boxed<CharObject, WrapperObject, char> {
 public:
  using Boxed::Boxed;
  char charValue() const { return value; }
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  char getCharacter() const override { return value; }
  void setCharacter(char character) override { value = character; }
  void setObject(const Object* other) override;
};

class BoolObject : public Boxed<BoolObject, WrapperObject, bool> {
 public:
  using Boxed::Boxed;
  bool boolValue() const { return value; }
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  bool getBoolean() const override { return value; }
  void setBoolean(bool truth) override { value = truth; }
  void setObject(const Object* other) override;
};

class BigIntegerObject : public Boxed<BigIntegerObject, WrapperObject, BigInteger> {
 public:
  using Boxed::Boxed;
  const BigInteger& bigIntegerValue() const { return value; }
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  BigInteger getBigInteger() const override { return value; }
  void setBigInteger(const BigInteger& number) override { value = number; }
  void setObject(const Object* other) override;
};

class BigDecimalObject : public Boxed<BigDecimalObject, WrapperObject, BigDecimal> {
 public:
  using Boxed::Boxed;
  const BigDecimal& bigDecimalValue() const { return value; }
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  BigDecimal getBigDecimal() const override { return value; }
  void setBigDecimal(const BigDecimal& number) override { value = number; }
  void setObject(const Object* other) override;
};

class BinaryObject : public Boxed<BinaryObject, WrapperObject, Binary> {
 public:
  using Boxed::Boxed;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  Binary getBinary() const override { return value; }
  void setBinary(const Binary& bytes) override { value = bytes; }
  void setObject(const Object* other) override;
};

/// Prints as "yyyy-MM-ddTHH:mm:ss.SSS".
class DateObject : public Boxed<DateObject, WrapperObject, DateTime> {
 public:
  using Boxed::Boxed;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  DateTime getDate() const override { return value; }
  void setDate(const DateTime& date) override { value = date; }
  void setObject(const Object* other) override;
};

/// Prints as DateObject does, with no zone, and is read and written as an ISODateTime alone.
class ISODateObject : public Boxed<ISODateObject, WrapperObject, ISODateTime> {
 public:
  using Boxed::Boxed;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  ISODateTime getISODate() const override { return value; }
  void setISODate(const ISODateTime& date) override { value = date; }
  void setObject(const Object* other) override;
};

}  // namespace zarvik
