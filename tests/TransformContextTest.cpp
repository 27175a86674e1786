#include "TransformContext.h"

#include "Support.h"

namespace zarvik {
namespace {

constexpr char noOutput[] =
    "The transform context cannot accept output. Make sure that you call createOutputContext() on the "
    "TransformContext if output is expected";

struct Counted : ObjectRef {};

TEST(TransformContext, costsNothingUntilSomethingIsSet) {
  const zkstringliteral name("name");
  const Allocations allocations;
  TransformContext context;
  TransformContextWrapper wrapper(&context);
  TransformContext copy;
  copy = context;
  context.copyTo(copy);
  copy.putAll({});
  EXPECT_EQ(wrapper.getProperty(name), "");
  EXPECT_EQ(wrapper.getObjectProperty(name), nullptr);
  wrapper.clear();
  EXPECT_EQ(allocations.count(), 0);
}

TEST(TransformContext, keepsWhatIsSetLast) {
  TransformContext context;
  context.setProperty("a", "1");
  context.setContextProperty("a", "2");
  context.putAll({{"a", "3"}, {"b", "4"}});
  EXPECT_EQ(context.getProperty("a"), "2");
  EXPECT_EQ(context.getProperty("b"), "4");
  context.setProperty("a", "");
  context.putAll({{"a", "5"}});  // the empty text is an entry
  EXPECT_EQ(context.getProperty("a"), "");
  for (int i = 0; i < 20; ++i) {  // a few are looked through, more are searched for
    EXPECT_EQ(context.getProperty(intToString(i)), "");
    context.setProperty(intToString(i), intToString(-i));
    for (int k = 0; k <= i; ++k) EXPECT_EQ(context.getProperty(intToString(k)), intToString(-k));
  }
}

TEST(TransformContext, holdsOneReferenceOnEachObject) {
  const SmartPtr<Counted> first(new Counted);
  const SmartPtr<Counted> second(new Counted);
  {
    TransformContext context;
    context.setObjectProperty("a", first.get());
    context.setObjectProperty("b", second.get());
    EXPECT_EQ(first->getRefCount(), 2);
    context.setObjectProperty("a", second.get());
    EXPECT_TRUE(first->unique());
    context.setObjectProperty("b", nullptr);
    context.clear();
    EXPECT_EQ(context.getObjectProperty("a"), second.get());
    EXPECT_EQ(context.getObjectProperty("b"), nullptr);
    EXPECT_EQ(second->getRefCount(), 2);
    TransformContext shared;
    shared.setObjectProperty("c", first.get());
    shared = context;
  }
  EXPECT_TRUE(first->unique());
  EXPECT_TRUE(second->unique());
}

TEST(TransformContext, copiesTextsAndSharesOutput) {
  TransformContext from;
  TransformContext to;
  from.setProperty("a", "1");
  from.createOutputContext();
  to.setProperty("b", "2");
  from.copyTo(to);
  EXPECT_EQ(to.getProperty("a"), "1");
  EXPECT_EQ(to.getProperty("b"), "");
  EXPECT_EQ(to.getOutputContext().get(), from.getOutputContext().get());
  from.copyTo(from);
  EXPECT_EQ(from.getProperty("a"), "1");
  EXPECT_FALSE(from.getOutputContext().isNull());
  TransformContext().copyTo(to);
  EXPECT_EQ(from.getProperty("a"), "1");
  EXPECT_EQ(errorOf<TransformException>([&] { to.getOutputContext(); }), noOutput);
}

TEST(TransformContextWrapper, overlaysTextsAlone) {
  TransformContext context;
  context.setProperty("a", "wrapped");
  context.setProperty("b", "wrapped");
  context.setObjectProperty("o", new Counted);
  TransformContextWrapper wrapper(&context);
  wrapper.setContextProperty("a", "over");
  wrapper.setProperty("c", "");
  EXPECT_EQ(context.getProperty("a"), "wrapped");
  EXPECT_EQ(wrapper.getProperty("a"), "over");
  EXPECT_EQ(wrapper.getProperty("b"), "wrapped");
  EXPECT_EQ(wrapper.getObjectProperty("o"), nullptr);
  context.setProperty("c", "hidden");
  EXPECT_EQ(wrapper.getProperty("c"), "");

  const TransformContextWrapper copy(wrapper);
  TransformContextWrapper assigned;
  EXPECT_EQ(assigned.getProperty("b"), "");
  assigned = copy;
  EXPECT_EQ(assigned.getProperty("a"), "over");
  EXPECT_EQ(assigned.getTransformContext(), &context);

  assigned.setTransformContext(&wrapper);
  for (TransformContextWrapper* again : {&wrapper, &assigned}) wrapper.setTransformContext(again);
  EXPECT_EQ(wrapper.getTransformContext(), &context);  // and nobody goes in circles
  assigned.setTransformContext(&context);

  wrapper.clear();
  EXPECT_EQ(wrapper.getProperty("a"), "over");
  EXPECT_EQ(wrapper.getProperty("b"), "");
}

TEST(TransformContextWrapper, collectsOutputInWhatItWraps) {
  TransformContext context;
  TransformContextWrapper wrapper(&context);
  EXPECT_EQ(errorOf<TransformException>([&] { wrapper.getOutputContext(); }), noOutput);
  wrapper.createOutputContext();
  const SmartPtr<IOutputContext> output = context.getOutputContext();
  wrapper.createOutputContext();
  EXPECT_EQ(wrapper.getOutputContext().get(), output.get());
  wrapper.clear();
  EXPECT_TRUE(output->unique());
  EXPECT_EQ(errorOf<TransformException>([&] { context.getOutputContext(); }), noOutput);
}

}  // namespace
}  // namespace zarvik
