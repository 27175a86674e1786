#include "AbstractExternalMessage.h"

#include "ByteArrayInputSource.h"
#include "DataObjectIO.h"
#include "FieldsValidationRules.h"
#include "InputParser.h"
#include "Reporting.h"
#include "SimpleOutputWriter.h"
#include "Support.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

SmartPtr<DataObject> with(const char* name) {
  return new ExternalObject(TestRecord::named("H"), TestRecord::named(name), TestRecord::named("T"));
}

/// The bytes are the name in the data.
struct Parser : InputParser {
  using InputParser::ensureNotNull;
  using InputParser::parse;
  void parse(ExternalObject* object, const Binary& bytes, TransformContext& /*context*/) override {
    object->getData()->setField(TestRecord::NAME, StringObject(bytes.toString()));
    report(told(bytes), exceptionHandler);
  }
  ExternalObject* parse(const Binary& bytes, TransformContext& /*context*/) override {
    return new ExternalObject(nullptr, TestRecord::named(told(bytes).c_str()), nullptr);
  }
};

struct Writer : SimpleOutputWriter {
  zkstring writeExternal(ExternalObject& object, TransformContext& /*context*/) override {
    report(told(object.getData()), exceptionHandler);
    return ("<" + told(object.getData()) + ">").c_str();
  }
};

/// Notes its steps with the names of the parts, and tests the name in the data.
struct Rules : FieldsValidationRules {
  void validateData0(DataObject* header, DataObject* data) override {
    steps += "data " + told(header) + "," + told(data) + " ";
    report(told(data), exceptionHandler);
  }
  void validateHeader0(DataObject* header) override { steps += "header " + told(header) + " "; }
  void validateTrailer0(DataObject* trailer) override { steps += "trailer " + told(trailer) + " "; }
  std::string steps;
};

struct Message : AbstractExternalMessage {
  Message() : AbstractExternalMessage("Message") {
    addValidator("Default", &rules);
    addValidator("Other", &otherRules);
    addValidator("Other", &rules);  // too late
  }
  SmartPtr<ExternalObject> createExternalObject() override { return guardedCast<ExternalObject>(with("").get()); }
  InputParser* getInputParser() override { return &parser; }
  SimpleOutputWriter* getOutputWriter() override { return &writer; }

  Rules rules, otherRules;
  Parser parser;
  Writer writer;
};

TEST(ExternalMessage, plainOperationsThrowTheFirstErrorAndTheOthersCollect) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  const auto sourceOf = [](const char* text) { return RawMessage(new ByteArrayInputSource(Binary(zkstring(text)))); };
  // Two errors are reported, or one before another is thrown.
  const auto test = [](const char* name, const std::string& reporting, const std::string& throwing, auto operation) {
    EXPECT_EQ(outcome([&] { return operation("!!"); }), reporting) << name;
    EXPECT_EQ(outcome([&] { return operation("!?"); }), throwing) << name;
  };
  const auto plain = [&](const char* name, const std::string& type, auto operation) {
    test(name, "throws !  " + type, "throws !  " + type, operation);
  };
  for (int round = 0; round < 2; ++round) {  // again, for no call may leave its handler to the next
    plain("parse", "", [&](auto text) { return message->parse(Binary(zkstring(text)), context); });
    plain("parse message", "", [&](auto text) { return message->parse(sourceOf(text), context); });
    plain("parse source", "",
          [&](auto text) { return message->parse(static_cast<InputSource&>(*sourceOf(text)), context); });
    plain("validate", "Validation", [&](auto text) { message->validate(with(text), context); });
    plain("validate by", "Validation", [&](auto text) { message->validate("Other", with(text), context); });
    plain("serialize", "", [&](auto text) { return message->serialize(with(text), context); });
    plain("serializeMessage", "", [&](auto text) { return message->serializeMessage(with(text), context); });
    test("parse2", "!!!!", "throws ?  ", [&](auto text) { return message->parse2(Binary(zkstring(text)), context); });
    test("parse2 source", "!!!!", "throws ?  ",
         [&](auto text) { return message->parse2(static_cast<InputSource&>(*sourceOf(text)), context); });
    test("validate2", "null!!", "throws ?  Validation",
         [&](auto text) { return message->validate2(with(text), context); });
    test("validate2 by", "null!!", "throws ?  Validation",
         [&](auto text) { return message->validate2("Other", with(text), context); });
    test("serialize2", "<!!>!!", "throws ?  ", [&](auto text) { return message->serialize2(with(text), context); });
    test("serializeMessage2", "<!!>!!", "throws ?  ",
         [&](auto text) { return message->serializeMessage2(with(text), context); });
  }
}

TEST(ExternalMessage, theContextSelectsTheForm) {
  const SmartPtr<Message> message(new Message);
  const SmartPtr<DataObject> object = with("a");
  struct Row {
    const char* form;
    std::string written;
    std::string parsed;  // from what was written
  };
  const Row rows[] = {{"", "<a>", "<a>"},
                      {"Xml", "<a>", "<a>"},
                      {"xml", told(object->toXMLString()), "throws XML parsing is not supported  "},
                      {"zarvik", told(DataObjectIO::serialize(object.get())), "a"}};
  for (const Row& row : rows) {
    TransformContext context;
    context.setProperty(IMessage::MESSAGE_FORMAT, row.form);
    const RawMessage written = message->serializeMessage(object, context);
    EXPECT_EQ(told(written), row.written);
    EXPECT_EQ(told(message->serialize(object, context)), row.written);
    EXPECT_EQ(outcome([&] { return message->parse(static_cast<InputSource&>(*written), context); }), row.parsed);
    EXPECT_EQ(outcome([&] { return message->parse(written, context); }), row.written);
  }
}

TEST(ExternalMessage, validatesAndWritesExternalObjects) {
  const SmartPtr<Message> message(new Message);
  const SmartPtr<DataObject> objects[] = {nullptr, new TestRecord};
  constexpr const char* texts[] = {"Unexpected null object. Expected external object",
                                   "Unexpected object of type zarvik::TestRecord. Expected external object"};
  const auto refusal = [](auto operation) { return errorOf<TransformRuntimeException>(operation); };
  TransformContext context;
  for (const char* form : {"", "xml", "zarvik"}) {
    context.setProperty(IMessage::MESSAGE_FORMAT, form);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(refusal([&] { message->validate(objects[i], context); }), texts[i]);
      EXPECT_EQ(refusal([&] { message->serialize(objects[i], context); }), texts[i]);
      EXPECT_EQ(refusal([&] { message->serializeMessage(objects[i], context); }), texts[i]);
    }
  }
  EXPECT_EQ(refusal([&] { message->validate("None", nullptr, context); }),
            "Validator by name 'None' is not defined for the message");

  message->validate(with("a"), context);
  message->validate("Other", with("b"), context);
  EXPECT_EQ(message->rules.steps + "| " + message->otherRules.steps,
            "header H data H,a trailer T | header H data H,b trailer T ");
}

TEST(InputParser, takesSourcesAsBytesAndWantsValues) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  const RawMessage source(new ByteArrayInputSource(Binary(zkstring("a"))));
  EXPECT_EQ(told(SmartPtr<DataObject>(message->parser.parse(static_cast<InputSource&>(*source), context))), "a");
  const SmartPtr<TestRecord> record(new TestRecord);
  const auto test = [&](const char* value, int index) {
    return errorOf<FieldParsingException>([&] { message->parser.ensureNotNull(value, record.get(), index, context); });
  };
  EXPECT_EQ(test("x", 99), "no exception");
  EXPECT_EQ(test("", 1), "Field 'No of' cannot be null.");
  EXPECT_EQ(test("", 99), "Null value error while parsing a field");
  message->parser.ensureNotNull0("x", record.get(), 99, context);
}

}  // namespace
}  // namespace zarvik
