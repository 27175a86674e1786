#include "ObjectList.h"

#include <utility>

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "WrapperObjects.h"
#include "date/DateTime.h"
#include "zkstringbuffer.h"

namespace zarvik {

void ObjectListRef::add(Object* object) {
  objects.reserve(1);  // what may fail comes first
  ObjectRef::addRef(object);
  objects.push_back(object);
}

void ObjectListRef::add(const Object& object) {
  objects.reserve(1);
  add(object.clone());
}

void ObjectListRef::clear() {
  // An element is out of the list before it is let go: its end may look at the list, or throw.
  for (unsigned int i = 0; i < objects.size(); ++i) ObjectRef::releaseRef(std::exchange(objects.at(i), nullptr));
  objects.clear();
}

ObjectList& ObjectList::operator=(const ObjectList& other) {
  SmartPtr<ObjectListRef> taken(other.getListPtr());  // so that the own storage survives being assigned to itself
  list = std::move(taken);
  return *this;
}

ObjectList& ObjectList::add(Object* object) {
  addObject0(object);
  return *this;
}

ObjectList& ObjectList::add(const Object& object) {
  getListPtrForChange()->add(object);
  return *this;
}

ObjectList& ObjectList::add(const zkstring& value) { return add(StringObject(value)); }
ObjectList& ObjectList::add(const char* value) { return add(StringObject(value)); }
ObjectList& ObjectList::add(int value) { return add(IntObject(value)); }
ObjectList& ObjectList::add(__int64 value) { return add(LongObject(value)); }
ObjectList& ObjectList::add(float value) { return add(FloatObject(value)); }
ObjectList& ObjectList::add(double value) { return add(DoubleObject(value)); }
ObjectList& ObjectList::add(char value) { return add(CharObject(value)); }
ObjectList& ObjectList::add(bool value) { return add(BoolObject(value)); }
ObjectList& ObjectList::add(const BigDecimal& value) { return add(BigDecimalObject(value)); }
ObjectList& ObjectList::add(const BigInteger& value) { return add(BigIntegerObject(value)); }
ObjectList& ObjectList::add(const Binary& value) { return add(BinaryObject(value)); }
ObjectList& ObjectList::add(const DateTime& value) { return add(DateObject(value)); }

zkstring ObjectList::toString() const {
  zkstringbuffer text;
  for (int i = 0; i < size(); ++i) {
    if (i > 0) text.append(',');
    const Object* const object = at(i);
    text.append(object != nullptr ? object->toString() : zkstringliteral("null"));
  }
  return text;
}

SmartPtr<ObjectListRef> ObjectList::getListPtr() const {
  if (list.isNull()) list = new ObjectListRef;
  return list;
}

}  // namespace zarvik
