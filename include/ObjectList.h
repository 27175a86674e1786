#pragma once

#include <utility>

#include "ArrayList.h"
#include "Object.h"
#include "SmartPtr.h"
#include "zkstring.h"

namespace zarvik {

/// The storage of an ObjectList: the objects, each with the one count that the list holds on it.
class ObjectListRef : public ObjectRef {
  friend class ObjectList;

  ObjectListRef() = default;
  ObjectListRef(const ObjectListRef&) = delete;
  ObjectListRef& operator=(const ObjectListRef&) = delete;
  ~ObjectListRef() override { clear(); }

  void add(Object* object);
  void add(const Object& object);
  Object* at(int index) const { return objects.at(static_cast<unsigned int>(index)); }
  Object* operator[](int index) const { return at(index); }
  int size() const { return static_cast<int>(objects.size()); }
  void clear();

  ArrayList<Object*> objects;
};

/// A list of objects of any kind: the arguments of a message or of a call, or the contents of a generic field.
///
/// A handle on storage that all its copies share: a copy, an assignment and a `clone()` see each other's changes. The
/// storage comes with the first use, be it only a look or a copy. A counted object is shared with its other owners; one
/// that is not counted, such as a boxed value, belongs to the list and goes with it. Elements may be null. Positions
/// count from 0 and are unchecked. One thread at a time.
class ObjectList : public Object {
 public:
  ObjectList() = default;
  ObjectList(const ObjectList& other) : Object(), list(other.getListPtr()) {}
  ObjectList(ObjectList&& other) noexcept : list(std::move(other.list)) {}
  // A list of the arguments, boxed, in their order.
  ObjectList(Object* object) { add(object); }  ///< takes the object over
  ObjectList(const zkstring& text) { add(text); }
  ObjectList(const zkstring& first, const zkstring& second) { add(first).add(second); }
  ObjectList(const zkstring& first, int second) { add(first).add(second); }
  ObjectList(int first, const zkstring& second) { add(first).add(second); }
  ObjectList(int value) { add(value); }  ///< a list of this one number
  ObjectList(const char* text) { add(text); }
  ObjectList(const char* first, const char* second) { add(first).add(second); }
  ObjectList(const Binary& value) { add(value); }
  ~ObjectList() noexcept(false) override = default;

  ObjectList& operator=(const ObjectList& other);
  ObjectList& operator=(ObjectList&& other) {
    list = std::move(other.list);
    return *this;
  }

  ObjectList& add(Object* object);        ///< takes the object over; may be null
  ObjectList& add(const Object& object);  ///< adds a clone
  // These add the value in a new box.
  ObjectList& add(const zkstring& value);
  ObjectList& add(const char* value);
  ObjectList& add(int value);
  ObjectList& add(__int64 value);
  ObjectList& add(float value);
  ObjectList& add(double value);
  ObjectList& add(char value);
  ObjectList& add(bool value);
  ObjectList& add(const BigDecimal& value);
  ObjectList& add(const BigInteger& value);
  ObjectList& add(const Binary& value);
  ObjectList& add(const DateTime& value);

  Object* at(int index) const { return getListPtr()->at(index); }  ///< stays the list's own
  Object* operator[](int index) const { return at(index); }
  Object* get(int index) const { return at(index); }
  Object* getValue(int index) const { return at(index); }
  int size() const { return getListPtr()->size(); }
  void clear() { getListPtrForChange()->clear(); }

  zkstring toString() const override;  ///< the texts of the elements, "null" for null, with commas and no blanks
  Object* clone() const override { return new ObjectList(*this); }  ///< one more handle on the same elements

 private:
  /// On a failing allocation the object stays the caller's.
  void addObject0(Object* object) { getListPtrForChange()->add(object); }
  SmartPtr<ObjectListRef> getListPtr() const;
  SmartPtr<ObjectListRef> getListPtrForChange() const { return getListPtr(); }

  mutable SmartPtr<ObjectListRef> list;  ///< null until the first use
};

}  // namespace zarvik
