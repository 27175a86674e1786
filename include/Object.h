#pragma once

#include "zkstring.h"

namespace zarvik {

class BigDecimal;
class BigInteger;
class Binary;
class DateTime;
class ISODateTime;
class RawMessage;

/// The root of everything that travels as a value of unknown kind: field values, properties, list elements.
///
/// Any value can be asked for any kind: a class overrides the getters and setters of the kinds that it offers, all
/// others throw TransformException "Cannot convert <own type> to <kind>".
///
/// A class below Object that is not an ObjectRef is not counted: `addRef` does nothing, `releaseRef` deletes. It has
/// one owner, and is handed on by `clone()`. The order of the virtual operations is part of the interface.
class Object {
 protected:
  Object() = default;
  virtual ~Object() noexcept(false);  // below ObjectRef a destructor may report a wrong count

 public:
  static const zkstringliteral OBJECT_TYPE;

  Object(const Object& /*other*/) {}  ///< copies nothing
  Object& operator=(const Object& /*other*/) { return *this; }

  virtual void addRef();
  virtual void releaseRef();
  virtual zkstring toString() const;  ///< by default the class name and the address in hexadecimal
  /// A new object of the same class, owned by the caller; not counted, or with count 0. Classes that do not override
  /// it throw Exception.
  virtual Object* clone() const;

  virtual int getInt() const;
  virtual void setInt(int value);
  virtual __int64 getLong() const;
  virtual void setLong(__int64 value);
  virtual double getDouble() const;
  virtual void setDouble(double value);
  virtual float getFloat() const;
  virtual void setFloat(float value);
  virtual char getCharacter() const;
  virtual void setCharacter(char value);
  virtual bool getBoolean() const;
  virtual void setBoolean(bool value);
  virtual BigInteger getBigInteger() const;
  virtual void setBigInteger(const BigInteger& value);
  virtual BigDecimal getBigDecimal() const;
  virtual void setBigDecimal(const BigDecimal& value);
  virtual DateTime getDate() const;
  virtual void setDate(const DateTime& value);
  virtual ISODateTime getISODate() const;
  virtual void setISODate(const ISODateTime& value);
  virtual zkstring getString() const;
  virtual void setString(const zkstring& value);
  virtual Binary getBinary() const;
  virtual void setBinary(const Binary& value);
  virtual const RawMessage& getRawMessage() const;
  virtual void setRawMessage(const RawMessage& value);
  virtual const zkstring& getObjectType() const;  ///< the type word, such as "Integer"
  /// Takes the value of `value`, read through the getter of this class's own kind. `value` is not null.
  virtual void setObject(const Object* value);

  /// Throws TransformException "Cannot convert <own type> to <target>".
  [[noreturn]] void unsupportedConversionException(const zkstring& target) const;
};

/// An object with a count of its owners: born with 0, deleted by the `releaseRef` that brings it back to 0. It lives
/// on the heap once a SmartPtr takes it. The count is a plain integer: one thread at a time.
class ObjectRef : public virtual Object {
 protected:
  ObjectRef() = default;
  /// Throws TransformException when the object is deleted while it is owned.
  ~ObjectRef() override;

 public:
  /// The count is copied too: bring it to 0 by `decRef` before the copy is owned or destroyed.
  ObjectRef(const ObjectRef& other) : Object(), refCount(other.refCount) {}
  ObjectRef& operator=(const ObjectRef& other) = default;

  void addRef() override { ++refCount; }
  void releaseRef() override {
    if (--refCount == 0) delete this;
  }
  /// One owner less, with no deletion; at 0 nothing happens.
  void decRef() {
    if (refCount > 0) --refCount;
  }
  bool unique() const { return refCount == 1; }
  int getRefCount() const { return refCount; }

  static void addRef(Object* object) {
    if (object != nullptr) object->addRef();
  }
  static void releaseRef(Object* object) {
    if (object != nullptr) object->releaseRef();
  }

 private:
  void checkThreadOwner() {}

  int refCount = 0;
};

}  // namespace zarvik
