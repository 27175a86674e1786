#include "AbstractExternalMessage.h"

#include <functional>

#include "ByteArrayInputSource.h"
#include "DataObjectIO.h"
#include "ExternalObject.h"
#include "FieldsValidationRules.h"
#include "InputParser.h"
#include "Reporting.h"
#include "SimpleOutputWriter.h"
#include "Support.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

/// The bytes are the name in the data.
class Parser : public InputParser {
 public:
  using InputParser::parse;
  void parse(ExternalObject* object, const Binary& bytes, TransformContext& /*context*/) override {
    object->getData()->setField(TestRecord::NAME, StringObject(bytes.toString()));
    report(told(bytes), exceptionHandler);
  }
  ExternalObject* parse(const Binary& /*bytes*/, TransformContext& /*context*/) override { return nullptr; }
};

class Writer : public SimpleOutputWriter {
 public:
  zkstring writeExternal(ExternalObject& object, TransformContext& /*context*/) override {
    const std::string name = nameOf(object.getData());
    report(name, exceptionHandler);
    return ("<" + name + ">").c_str();
  }
};

/// Notes its steps with the names of the parts, and tests the name in the data.
class Rules : public FieldsValidationRules {
 public:
  std::string steps;

 protected:
  void validateData0(DataObject* header, DataObject* data) override {
    steps += "data " + nameOf(header) + "," + nameOf(data) + " ";
    report(nameOf(data), exceptionHandler);
  }
  void validateHeader0(DataObject* header) override { steps += "header " + nameOf(header) + " "; }
  void validateTrailer0(DataObject* trailer) override { steps += "trailer " + nameOf(trailer) + " "; }
};

class Message : public AbstractExternalMessage {
 public:
  Message() : AbstractExternalMessage("Message") {
    addValidator("Default", &rules);
    addValidator("Other", &otherRules);
    addValidator("Other", &rules);  // too late
  }
  SmartPtr<ExternalObject> createExternalObject() override {
    return new ExternalObject(recordOf("H").get(), recordOf("").get(), recordOf("T").get());
  }
  InputParser* getInputParser() override { return &parser; }
  SimpleOutputWriter* getOutputWriter() override { return &writer; }

  Rules rules;
  Rules otherRules;

 private:
  Parser parser;
  Writer writer;
};

SmartPtr<DataObject> with(const char* name) {
  return new ExternalObject(recordOf("H").get(), recordOf(name).get(), recordOf("T").get());
}

TEST(ExternalMessage, plainOperationsThrowTheFirstErrorAndTheOthersCollect) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  struct Row {
    const char* name;
    std::function<std::string(const char*)> operation;
    const char* good;       // of "a"
    const char* reporting;  // of "a!b!"
    const char* throwing;   // of "!?"
  };
  const auto line = [](const char* name, auto operation, const char* good, const char* reporting,
                       const char* throwing) {
    return Row{name, [=](const char* text) { return outcome([&] { return operation(text); }); }, good, reporting,
               throwing};
  };
  const auto bytes = [](const char* text) { return Binary(zkstring(text)); };
  const Row rows[] = {
      line(
          "parse", [&](auto text) { return message->parse(bytes(text), context); }, "a", "throws !  ", "throws !  "),
      line(
          "parse a source",
          [&](auto text) {
            ByteArrayInputSource source(bytes(text));
            return message->parse(static_cast<InputSource&>(source), context);
          },
          "a", "throws !  ", "throws !  "),
      line(
          "parse a message",
          [&](auto text) { return message->parse(RawMessage(new ByteArrayInputSource(bytes(text))), context); }, "a",
          "throws !  ", "throws !  "),
      line(
          "parse2", [&](auto text) { return message->parse2(bytes(text), context); }, "a", "a!b! [!] [!]",
          "throws ?  "),
      line(
          "parse2 a source",
          [&](auto text) {
            ByteArrayInputSource source(bytes(text));
            return message->parse2(static_cast<InputSource&>(source), context);
          },
          "a", "a!b! [!] [!]", "throws ?  "),
      line(
          "validate", [&](auto text) { message->validate(with(text), context); }, "done", "throws !  Validation",
          "throws !  Validation"),
      line(
          "validate by", [&](auto text) { message->validate("Other", with(text), context); }, "done",
          "throws !  Validation", "throws !  Validation"),
      line(
          "validate2", [&](auto text) { return message->validate2(with(text), context); }, "null", "null [!] [!]",
          "throws ?  Validation"),
      line(
          "validate2 by", [&](auto text) { return message->validate2("Other", with(text), context); }, "null",
          "null [!] [!]", "throws ?  Validation"),
      line(
          "serialize", [&](auto text) { return message->serialize(with(text), context); }, "<a>", "throws !  ",
          "throws !  "),
      line(
          "serialize2", [&](auto text) { return message->serialize2(with(text), context); }, "<a>", "<a!b!> [!] [!]",
          "throws ?  "),
      line(
          "serializeMessage", [&](auto text) { return message->serializeMessage(with(text), context); }, "<a>",
          "throws !  ", "throws !  "),
      line(
          "serializeMessage2", [&](auto text) { return message->serializeMessage2(with(text), context); }, "<a>",
          "<a!b!> [!] [!]", "throws ?  "),
  };
  for (int round = 0; round < 2; ++round) {  // again, for no call must leave its handler to the next
    for (const Row& row : rows) {
      EXPECT_EQ(row.operation("a"), row.good) << row.name;
      EXPECT_EQ(row.operation("a!b!"), row.reporting) << row.name;
      EXPECT_EQ(row.operation("!?"), row.throwing) << row.name;
    }
  }
}

TEST(ExternalMessage, theContextSelectsTheForm) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  const SmartPtr<DataObject> object = with("a");
  const std::string xml = textOf(object->toXMLString());
  const std::string compact = told(DataObjectIO::serialize(object.get()));
  struct Row {
    const char* form;
    std::string written;
    std::string parsed;  // from what was written
  };
  const Row rows[] = {{"", "<a>", "<a>"},
                      {"Xml", "<a>", "<a>"},
                      {"xml", xml, "throws XML parsing is not supported  "},
                      {"zarvik", compact, "a"}};
  for (const Row& row : rows) {
    context.setProperty(IMessage::MESSAGE_FORMAT, row.form);
    const Binary bytes = message->serialize(object, context);
    EXPECT_EQ(told(bytes), row.written);
    EXPECT_EQ(outcome([&] { return message->serializeMessage(object, context); }), row.written);
    EXPECT_EQ(outcome([&] { return message->parse(bytes, context); }), row.parsed);
    EXPECT_EQ(outcome([&] { return message->parse2(bytes, context); }), row.parsed);
    EXPECT_EQ(outcome([&] { return message->parse(RawMessage(new ByteArrayInputSource(bytes)), context); }),
              row.written);
  }
  EXPECT_EQ(message->parse(Binary(zkstring(compact.data(), static_cast<unsigned int>(compact.size()))), context)
                ->toXMLString(),
            object->toXMLString());
}

TEST(ExternalMessage, rulesSeeTheHeaderFirstAndTheTrailerLast) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  message->validate(with("a"), context);
  EXPECT_EQ(message->rules.steps, "header H data H,a trailer T ");
  message->validate("Other", with("b"), context);
  EXPECT_EQ(message->otherRules.steps, "header H data H,b trailer T ");
}

TEST(ExternalMessage, onlyExternalObjectsAreValidatedAndWritten) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  const SmartPtr<DataObject> none;
  const SmartPtr<DataObject> other(new TestRecord);
  const auto refusal = [&](auto operation) { return errorOf<TransformRuntimeException>(operation); };
  for (const char* form : {"", "xml", "zarvik"}) {
    context.setProperty(IMessage::MESSAGE_FORMAT, form);
    const auto refusals = [&](const SmartPtr<DataObject>& object, const char* text) {
      EXPECT_EQ(refusal([&] { message->validate(object, context); }), text);
      EXPECT_EQ(refusal([&] { message->serialize(object, context); }), text);
      EXPECT_EQ(refusal([&] { message->serializeMessage(object, context); }), text);
    };
    refusals(none, "Unexpected null object. Expected external object");
    refusals(other, "Unexpected object of type zarvik::TestRecord. Expected external object");
  }
  EXPECT_EQ(refusal([&] { message->validate("None", none, context); }),
            "Validator by name 'None' is not defined for the message");
}

}  // namespace
}  // namespace zarvik
