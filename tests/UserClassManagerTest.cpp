#include "UserClassManager.h"

#include "Support.h"

namespace zarvik {
namespace {

struct Processing : Living<IProcessing> {
  void process(DataObject* /*object*/, TransformContext& /*context*/) override {}
};
struct Plain : Living<Object> {};

template <class T>
struct Factory : Living<ObjectFactory> {
  Object* newInstance() override { return new T; }
};

const UserClass registeredBeforeMain("early", new Factory<Processing>);

TEST(UserClassManager, makesWhatWasRegisteredLast) {
  UserClassManager::registerClass("twice", new Factory<Plain>);
  UserClassManager::registerClass("twice", new Factory<Processing>);
  EXPECT_EQ(Living<ObjectFactory>::alive, 2);  // with that of "early"
  for (const char* name : {"early", "twice"}) {
    const SmartPtr<IProcessing> made(CustomClassSupport<IProcessing>().createInstance(name));
    EXPECT_TRUE(made->unique());
  }
  EXPECT_EQ(Processing::alive, 0);
}

TEST(UserClassManager, refusesNamesThatStandForNothing) {
  UserClassManager::registerClass("null", nullptr);
  for (const char* name : {"null", "EARLY", "earl", "early ", ""}) {
    EXPECT_EQ(errorOf<TransformException>([&] { UserClassManager::createInstance(name); }),
              std::string("Class not found ") + name);
  }
}

TEST(CustomClassSupport, letsGoOfAnObjectOfAnotherClass) {
  UserClassManager::registerClass("plain", new Factory<Plain>);
  for (const char* name : {"plain", "early"}) {
    EXPECT_EQ(errorOf<TransformException>([&] { CustomClassSupport<IFieldProcessing>().createInstance(name); }),
              std::string("Error creating custom class instance - ") + name + " is not of expected type");
  }
  EXPECT_EQ(Plain::alive, 0);
  EXPECT_EQ(Processing::alive, 0);
}

}  // namespace
}  // namespace zarvik
