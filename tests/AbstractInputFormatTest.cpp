#include "AbstractInputFormat.h"

#include "InputParser.h"
#include "LookupContextFactory.h"
#include "ObjectFactory.h"
#include "RecordingMessage.h"
#include "Reporting.h"
#include "StringInputSource.h"
#include "Support.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

/// Writes down the names of what it is handed; throws for '*'.
struct Taker : RecordingTransaction {
  void handleNormalizedObject(DataObject* object, TransformContext& /*context*/) override {
    taken += nameOf(object) + " ";
    if (nameOf(object) == "*") throw TransformException("taken");
  }
  inline static std::string taken;
};

struct Record : TestRecord {
  Record() { ++made; }
  void reset() override {
    ++resets;
    setAllFieldsToNull();
    values.name = "";
  }
  inline static int made = 0;
  inline static int resets = 0;
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
  Taker::taken.clear();
  struct Row {
    const char* input;
    const char* outcome;
    int resets;
  };
  constexpr Row rows[] = {{"a", "done", 0}, {"?", "throws ? Input ", 1}, {"", "done", 2}, {"*", "throws taken  ", 3}};
  Record::made = Record::resets = 0;
  for (const Row& row : rows) {
    StringInputSource source(row.input);
    EXPECT_EQ(outcome([&] { format->processInput(source, context); }), row.outcome);
    EXPECT_EQ(Record::resets, row.resets);
    EXPECT_EQ(Record::made, 1);
  }
  EXPECT_EQ(Taker::taken, "a  * ");

  StringInputSource good("b");
  DataObject* const object = format->handleInput(good, context);
  EXPECT_EQ(object->getRefCount(), 0);
  EXPECT_EQ(told(object), "b");
  EXPECT_EQ(Record::made, 2);
  StringInputSource bad("?");
  EXPECT_EQ(outcome([&] { return SmartPtr<DataObject>(format->handleInput(bad, context)); }), "throws ?  ");
  EXPECT_EQ(Taker::taken, "a  * ");
  registry->unbind("Taker");
}

struct Parser : InputParser {
  using InputParser::ensureNotNull;
  using InputParser::parse;
  void parse(ExternalObject* object, const Binary& bytes, TransformContext& /*context*/) override {
    object->setExternalObjects(nullptr, new TestRecord, nullptr);
    object->getData()->setField(TestRecord::NAME, StringObject(bytes.toString()));
  }
  ExternalObject* parse(const Binary& bytes, TransformContext& context) override {
    auto* const object = new ExternalObject;
    parse(object, bytes, context);
    return object;
  }
};

TEST(InputParser, readsSourcesAsBytes) {
  Parser parser;
  TransformContext context;
  StringInputSource source("a");
  const SmartPtr<DataObject> made(parser.parse(source, context));
  const SmartPtr<ExternalObject> filled(new ExternalObject);
  parser.parse(filled.get(), source, context);
  EXPECT_EQ(told(made) + told(SmartPtr<DataObject>(filled.get())), "aa");
}

TEST(InputParser, wantsValues) {
  Parser parser;
  TransformContext context;
  const SmartPtr<TestRecord> record(new TestRecord);
  const auto test = [&](const char* value, int index, bool inPlace) {
    try {
      inPlace ? parser.ensureNotNull(value, record.get(), index, context)
              : parser.ensureNotNull0(value, record.get(), index, context);
      return std::string("done");
    } catch (const FieldParsingException& error) {
      return textOf(error.getMessage()) + (error.isNull("FieldName") ? "" : " " + textOf(error.getFFieldName()));
    }
  };
  for (const bool inPlace : {true, false}) {
    EXPECT_EQ(test("x", 99, inPlace), "done");
    EXPECT_EQ(test("", 1, inPlace), "Field 'No of' cannot be null. No of");
    EXPECT_EQ(test("", 99, inPlace), "Null value error while parsing a field");
  }
}

}  // namespace
}  // namespace zarvik
