#include "formula/MessageFunctions.h"

#include "Support.h"

namespace zarvik {
namespace {

using F = MessageFunctions;

/// What the functions do is the same on a message and on a map.
template <class Handle>
void worksOn(const Handle& map) {
  EXPECT_EQ(F::getProperty(map, "a"), "");
  EXPECT_EQ(F::getProperty(map, "a", "default"), "default");
  EXPECT_TRUE(F::getProperty(map, "a", true));
  F::setProperty(map, "i.int", 5);
  F::setProperty(map, "i.long", __int64{6000000000});
  F::setProperty(map, "f.float", 1.5F);
  F::setProperty(map, "f.double", 2.5);
  F::setProperty(map, "bool", true);
  F::setProperty(map, "date", DateTime(2020, 1, 2, 0, 0, 0, 0));
  F::setProperty(map, "text", "7");
  EXPECT_EQ(F::getProperty(map, "text", 0), 7);
  EXPECT_EQ(F::getProperty(map, "i.long", __int64{0}), 6000000000);
  EXPECT_EQ(F::getProperty(map, "f.float", 0.0F), 1.5F);
  EXPECT_EQ(F::getProperty(map, "f.double", 0.0), 2.5);
  EXPECT_TRUE(F::getProperty(map, "bool", false));
  EXPECT_EQ(F::getProperty(map, "date", DateTime()), DateTime(2020, 1, 2, 0, 0, 0, 0));
  EXPECT_EQ(F::getPropertyNames(map).toString(), "[i.int, i.long, f.float, f.double, bool, date, text]");
  EXPECT_EQ(F::getPropertyNames(map, "i.*").toString(), "[i.int, i.long]");
  EXPECT_EQ(F::getPropertyNames(F::getProperties(map, "f")).toString(), "[float, double]");
  F::removeProperty(map, "text");
  EXPECT_EQ(F::getPropertyCount(map), 6);
}

TEST(MessageFunctions, workOnMessagesAndMapsAlike) {
  const RawMessage message = F::toRawMessage("text");
  worksOn(message);
  const SmartPtr<IPropertyMap> map(new PropertyMapImpl);
  worksOn(map);
  const RawMessage target = F::toRawMessage("target");
  F::putProperties(target, message);
  EXPECT_EQ(F::getPropertyNames(target).toString(), F::getPropertyNames(map).toString());
}

TEST(MessageFunctions, readAndLabelMessages) {
  const RawMessage message = F::toRawMessage("text");
  EXPECT_EQ(F::toText(message), "text");
  F::setName(message, "name");
  EXPECT_EQ(F::getName(message), "name");
  F::setAttachment(message, "a", F::toRawMessage(Binary(zkstring("attached"))));
  EXPECT_EQ(F::toText(F::getAttachment(message, "a")), "attached");
  EXPECT_EQ(errorOf<TransformNullValueException>([] { F::toText(RawMessage()); }), "Null value");
}

}  // namespace
}  // namespace zarvik
