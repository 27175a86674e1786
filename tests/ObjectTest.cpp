#include "Object.h"

#include "Support.h"

namespace zarvik {
namespace {

/// Tells of its end.
template <class Base>
struct Ending : Base {
  explicit Ending(bool& gone) : gone(gone) {}
  ~Ending() override { gone = true; }
  bool& gone;
};
using Counted = Ending<ObjectRef>;
using Plain = Ending<Object>;

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

  gone = false;
  SmartPtr<Object> alone(new Plain(gone));
  alone->addRef();  // counts nothing
  alone.reset(nullptr);
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
  const auto refuses = [&plain](const char* kind, auto getter) {
    EXPECT_EQ(errorOf<TransformException>([&] { ((*plain).*getter)(); }),
              std::string("Cannot convert Object to ") + kind);
  };
  refuses("Integer", &Object::getInt), refuses("Long", &Object::getLong), refuses("Double", &Object::getDouble);
  refuses("Float", &Object::getFloat), refuses("Character", &Object::getCharacter);
  refuses("Boolean", &Object::getBoolean), refuses("String", &Object::getString);
  refuses("RawMessage", &Object::getRawMessage);
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
