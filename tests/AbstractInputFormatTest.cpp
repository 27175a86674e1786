#include "AbstractInputFormat.h"

#include "Reporting.h"

namespace zarvik {
namespace {

/// Writes down the names of what it is handed; throws for "*".
struct Taker : NoTransaction {
  void handleNormalizedObject(DataObject* object, TransformContext& /*context*/) override {
    taken += told(object) + " ";
    if (told(object) == "*") throw TransformException("taken");
  }
  inline static std::string taken;
};

struct Record : TestRecord {
  Record() { log += "new "; }
  void reset() override {
    log += "reset ";
    values.name = "";
  }
  inline static std::string log;
};

/// The bytes are the name; none leave the name alone.
struct Format : AbstractInputFormat {
  Format() : AbstractInputFormat("Taker") {}
  void parseInput(InputSource& source, DataObject* object, TransformContext& /*context*/) override {
    const Binary bytes = source.getAsBinary();
    if (!bytes.empty()) object->setField(TestRecord::NAME, StringObject(bytes.toString()));
    report(told(bytes), nullptr);
  }
  DataObject* createNormalizedObject() override { return new Record; }
};

TEST(InputFormat, fillsOneObjectForAllMessages) {
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  EXPECT_EQ(errorOf<NamingException>([] { Format(); }), "Unable to lookup 'Taker'");
  registry->bind("Taker", new GenericObjectFactory<Taker>);
  const SmartPtr<Format> format(new Format);
  TransformContext context;
  constexpr const char* inputs[][2] = {{"a", "done"}, {"?", "throws ? Input "}, {"", "done"}, {"*", "throws taken  "}};
  for (const auto& [input, expected] : inputs) {
    StringInputSource source(input);
    EXPECT_EQ(outcome([&] { format->processInput(source, context); }), expected);
  }
  EXPECT_EQ(Record::log, "new reset reset reset ");

  StringInputSource good("b");
  DataObject* const object = format->handleInput(good, context);
  EXPECT_EQ(object->getRefCount(), 0);
  EXPECT_EQ(told(SmartPtr<DataObject>(object)), "b");
  StringInputSource bad("?");
  EXPECT_EQ(outcome([&] { format->handleInput(bad, context); }), "throws ?  ");
  EXPECT_EQ(Taker::taken, "a  * ");
  registry->unbind("Taker");
}

}  // namespace
}  // namespace zarvik
