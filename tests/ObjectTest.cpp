#include "Object.h"

#include <memory>

#include "Class.h"
#include "SmartPtr.h"
#include "Support.h"

namespace zarvik {
namespace {

struct Counted : ObjectRef {
  explicit Counted(bool& gone) : gone(gone) {}
  ~Counted() override { gone = true; }
  bool& gone;
};

struct Plain : Object {
  explicit Plain(bool& gone) : gone(gone) {}
  ~Plain() override { gone = true; }
  bool& gone;
};

TEST(SmartPtr, sharesCountedObjects) {
  bool gone = false;
  SmartPtr<Counted> first(new Counted(gone));
  SmartPtr<Counted> second(first);
  EXPECT_EQ(first->getRefCount(), 2);
  first.release();
  EXPECT_TRUE(first.isNull());
  EXPECT_FALSE(gone);
  EXPECT_TRUE(second->unique());
  second = nullptr;
  EXPECT_TRUE(gone);
}

TEST(SmartPtr, ownsUncountedObjectsAlone) {
  bool gone = false;
  SmartPtr<Object> owner(new Plain(gone));
  owner->addRef();  // counts nothing
  owner.reset(nullptr);
  EXPECT_TRUE(gone);
}

TEST(SmartPtr, movesWithoutCounting) {
  bool gone = false;
  SmartPtr<Counted> from(new Counted(gone));
  SmartPtr<Counted> to(std::move(from));
  EXPECT_TRUE(from.isNull());
  EXPECT_TRUE(to->unique());
  SmartPtr<Counted>& self = to;
  to = std::move(self);
  EXPECT_FALSE(gone);
  from = std::move(to);
  from.release();
  EXPECT_TRUE(gone);
}

TEST(ObjectRef, reportsADeletionWhileItIsOwned) {
  bool gone = false;
  auto* const object = new Counted(gone);
  object->addRef();
  const std::string error = errorOf<TransformException>([&] { delete object; });
  EXPECT_EQ(error, "Ref count error. Illegal delete for class zarvik::ObjectRef");
  EXPECT_TRUE(gone);
}

TEST(ObjectRef, copiesTheCount) {
  bool gone = false;
  const SmartPtr<Counted> object(new Counted(gone));
  Counted copy(*object);
  EXPECT_EQ(copy.getRefCount(), 1);
  copy.decRef();
  copy.decRef();  // at 0 nothing happens
  EXPECT_EQ(copy.getRefCount(), 0);
  ObjectRef::addRef(nullptr);
  ObjectRef::releaseRef(nullptr);
}

TEST(Object, refusesEveryKindThatItDoesNotOffer) {
  bool gone = false;
  const SmartPtr<Object> plain(new Plain(gone));
  struct Row {
    const char* kind;
    void (*get)(const Object&);
  };
  const Row rows[] = {
      {"Integer", [](const Object& o) { o.getInt(); }},
      {"Long", [](const Object& o) { o.getLong(); }},
      {"Double", [](const Object& o) { o.getDouble(); }},
      {"Float", [](const Object& o) { o.getFloat(); }},
      {"Character", [](const Object& o) { o.getCharacter(); }},
      {"Boolean", [](const Object& o) { o.getBoolean(); }},
      {"String", [](const Object& o) { o.getString(); }},
      {"RawMessage", [](const Object& o) { o.getRawMessage(); }},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(errorOf<TransformException>([&] { row.get(*plain); }),
              std::string("Cannot convert Object to ") + row.kind);
  }
  EXPECT_EQ(errorOf<TransformException>([&] { plain->setInt(1); }), "Cannot convert Object to Integer");
  EXPECT_EQ(errorOf<TransformException>([&] { plain->setObject(plain.get()); }), "Cannot convert Object to Object");
}

TEST(Object, namesItsClassAndAddress) {
  bool gone = false;
  const SmartPtr<Object> plain(new Plain(gone));
  const std::string name = Class(typeid(Plain)).getName().c_str();
  char address[32];
  std::snprintf(address, sizeof address, "%lx", reinterpret_cast<unsigned long>(dynamic_cast<void*>(plain.get())));
  EXPECT_EQ(plain->toString(), (name + address).c_str());
  EXPECT_EQ(errorOf<Exception>([&] { plain->clone(); }), "Clone not implemented in " + name);
}

}  // namespace
}  // namespace zarvik
