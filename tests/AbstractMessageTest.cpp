// AbstractExternalMessage and AbstractInternalMessage, which offer the same operations in two ways.
#include "AbstractExternalMessage.h"
#include "Reporting.h"

namespace zarvik {
namespace {

SmartPtr<DataObject> named(const char* name) { return TestRecord::named(name); }
SmartPtr<DataObject> with(const char* name) {
  return new ExternalObject(TestRecord::named("H"), TestRecord::named(name), TestRecord::named("T"));
}
Binary bytes(const char* text) { return Binary(zkstring(text)); }
RawMessage raw(const char* text) { return new ByteArrayInputSource(bytes(text)); }
InputSource& sourceIn(const RawMessage& message) { return *message; }

/// What becomes of two errors that `step` reports, and of one that it reports before it throws another.
template <class Operation>
std::string outcomes(const std::string& step, Operation operation) {
  const auto on = [&](const char* errors) { return outcome([&] { return operation((step + errors).c_str()); }); };
  return on("!!") + " / " + on("!?");
}

/// The outcomes when the first error is thrown, with its stamps.
std::string both(const std::string& error) { return "throws " + error + " / throws " + error; }

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
    return zk("<" + told(object.getData()) + ">");
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
  const auto of = [](auto operation) { return outcomes("", operation); };
  const std::string first = both("!  "), invalid = both("!  Validation");
  for (int round = 0; round < 2; ++round) {  // again, for no call may leave its handler to the next
    EXPECT_EQ(of([&](auto text) { return message->parse(bytes(text), context); }), first);
    EXPECT_EQ(of([&](auto text) { return message->parse(raw(text), context); }), first);
    EXPECT_EQ(of([&](auto text) { return message->parse(sourceIn(raw(text)), context); }), first);
    EXPECT_EQ(of([&](auto text) { message->validate(with(text), context); }), invalid);
    EXPECT_EQ(of([&](auto text) { message->validate("Other", with(text), context); }), invalid);
    EXPECT_EQ(of([&](auto text) { return message->serialize(with(text), context); }), first);
    EXPECT_EQ(of([&](auto text) { return message->serializeMessage(with(text), context); }), first);

    const std::string parsed = "!!!! / throws ?  ", validated = "null!! / throws ?  Validation";
    const std::string written = "<!!>!! / throws ?  ";
    EXPECT_EQ(of([&](auto text) { return message->parse2(bytes(text), context); }), parsed);
    EXPECT_EQ(of([&](auto text) { return message->parse2(sourceIn(raw(text)), context); }), parsed);
    EXPECT_EQ(of([&](auto text) { return message->validate2(with(text), context); }), validated);
    EXPECT_EQ(of([&](auto text) { return message->validate2("Other", with(text), context); }), validated);
    EXPECT_EQ(of([&](auto text) { return message->serialize2(with(text), context); }), written);
    EXPECT_EQ(of([&](auto text) { return message->serializeMessage2(with(text), context); }), written);
  }
}

TEST(ExternalMessage, theContextSelectsTheForm) {
  const SmartPtr<Message> message(new Message);
  const SmartPtr<DataObject> object = with("a");
  const std::tuple<const char*, std::string, std::string> rows[] = {
      // the form, what is written, what is read of it
      {"", "<a>", "<a>"},
      {"Xml", "<a>", "<a>"},
      {"xml", told(object->toXMLString()), "throws XML parsing is not supported  "},
      {"zarvik", told(DataObjectIO::serialize(object.get())), "a"}};
  for (const auto& [form, text, parsed] : rows) {
    TransformContext context;
    context.setProperty(IMessage::MESSAGE_FORMAT, form);
    const RawMessage written = message->serializeMessage(object, context);
    EXPECT_EQ(told(written), text);
    EXPECT_EQ(told(message->serialize(object, context)), text);
    EXPECT_EQ(outcome([&] { return message->parse(sourceIn(written), context); }), parsed);
    EXPECT_EQ(outcome([&] { return message->parse(written, context); }), text);
  }
}

TEST(ExternalMessage, validatesAndWritesExternalObjects) {
  const SmartPtr<Message> message(new Message);
  TransformContext context;
  const auto refusal = [](auto operation) { return errorOf<TransformRuntimeException>(operation); };
  const std::pair<SmartPtr<DataObject>, const char*> rows[] = {
      {nullptr, "Unexpected null object. Expected external object"},
      {new TestRecord, "Unexpected object of type zarvik::TestRecord. Expected external object"}};
  for (const char* form : {"", "xml", "zarvik"}) {
    context.setProperty(IMessage::MESSAGE_FORMAT, form);
    for (const auto& row : rows) {
      EXPECT_EQ(refusal([&] { message->validate(row.first, context); }), row.second);
      EXPECT_EQ(refusal([&] { message->serialize(row.first, context); }), row.second);
      EXPECT_EQ(refusal([&] { message->serializeMessage(row.first, context); }), row.second);
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
  Parser parser;
  TransformContext context;
  EXPECT_EQ(told(SmartPtr<DataObject>(parser.parse(sourceIn(raw("a")), context))), "a");
  TestRecord record;
  const auto test = [&](const char* value, int index) {
    return errorOf<FieldParsingException>([&] { parser.ensureNotNull(value, &record, index, context); });
  };
  EXPECT_EQ(test("x", 99), "no exception");
  EXPECT_EQ(test("", 1), "Field 'No of' cannot be null.");
  EXPECT_EQ(test("", 99), "Null value error while parsing a field");
  parser.ensureNotNull0("x", &record, 99, context);
}

/// Notes its name, and finds its own errors in the object's: "pre!" has one for the step "pre".
struct Step {
  Step(const char* name, std::string& log) : name(name), log(log) {}
  void run(DataObject* object, ExceptionHandler* handler) const {
    log += name + " ";
    if (told(object).find(name) == 0) report(told(object), handler);
  }
  const std::string name;
  std::string& log;
};
struct Processing : Step, BusinessProcessingRules {
  using Step::Step;
  void process(DataObject* object) override { run(object, exceptionHandler); }
};
struct Validation : Step, ValidationRules {
  using Step::Step;
  void validate(DataObject* object) override { run(object, exceptionHandler); }
};
struct LoggedTriggers : Triggers, Step {
  explicit LoggedTriggers(std::string& log) : Triggers(nullptr), Step("triggers", log) {}
  void onNewMessage0(DataObject* message, TransformContext& /*context*/) override { run(message, nullptr); }
  void onBatchStart0(TransformContext& /*context*/) override {}
  void onBatchEnd0(TransformContext& /*context*/) override {}
};

struct Transaction : AbstractInternalMessage {
  explicit Transaction(bool processed) : AbstractInternalMessage("Transaction") {
    addValidator("Default", &validation);
    addValidator("Default", &other);  // too late
    addValidator("Other", &other);
    addProcessing("Extra", &extra);
    if (!processed) return;
    addProcessing(PREPROCESSING_NODE_NAME, &before);
    addProcessing(POSTPROCESSING_NODE_NAME, &behind);
    addProcessing(POSTPROCESSING_NODE_NAME, &extra);  // too late
  }
  DataObject* createNormalizedObject() override { return TestRecord::named("new"); }
  Triggers* getTriggers() override { return &triggers; }

  // That these are what `handleNormalizedObject` calls shows in brackets.
  SmartPtr<DataObject> preprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += "(";
    return AbstractInternalMessage::preprocess(object, context);
  }
  using AbstractInternalMessage::validate;
  void validate(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += "|";
    AbstractInternalMessage::validate(object, context);
  }
  SmartPtr<DataObject> postprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += ")";
    return AbstractInternalMessage::postprocess(object, context);
  }

  std::string log;
  Processing before{"before", log}, behind{"behind", log}, extra{"extra", log};
  Validation validation{"validation", log}, other{"other", log};
  LoggedTriggers triggers{log};
};

TEST(InternalMessage, leadsAnObjectThroughItsRulesToTheTriggersAndLeavesItsCount) {
  constexpr std::tuple<bool, const char*, const char*, const char*> rows[] = {
      {false, "a", "done", "|validation triggers "},
      {true, "a", "done", "(before |validation )behind triggers "},
      {true, "before!", "throws ! Internal Message Processing", "(before "},
      {true, "validation?", "throws ? Internal Message ", "(before |validation "},
      {true, "behind!", "throws ! Internal Message Processing", "(before |validation )behind "},
      {false, "triggers?", "throws ? Internal Message ", "|validation triggers "}};
  for (const auto& [processed, name, expected, steps] : rows) {
    const SmartPtr<Transaction> transaction(new Transaction(processed));
    TransformContext context;
    DataObject* const object = TestRecord::named(name);
    const auto handle = [&] { transaction->handleNormalizedObject(object, context); };
    EXPECT_EQ(outcome(handle), expected);
    EXPECT_EQ(object->getRefCount(), 0);
    const SmartPtr<DataObject> owner(object);
    EXPECT_EQ(outcome(handle), expected);
    EXPECT_EQ(object->getRefCount(), 1);
    EXPECT_EQ(transaction->log, std::string(steps) + steps);
  }
}

TEST(InternalMessage, plainOperationsThrowTheFirstErrorAndTheOthersCollectAsDoThoseOfAWrapper) {
  const SmartPtr<Transaction> transaction(new Transaction(true));
  const SmartPtr<BusinessTransactionWrapper> wrapper(new BusinessTransactionWrapper(transaction.get()));
  TransformContext context;
  for (IInternalMessage* message :
       {static_cast<IInternalMessage*>(transaction.get()), static_cast<IInternalMessage*>(wrapper.get())}) {
    const std::string first = both("!  "), processing = both("!  Processing");
    EXPECT_EQ(outcomes("validation", [&](auto o) { message->validate(named(o), context); }), first);
    EXPECT_EQ(outcomes("other", [&](auto o) { message->validate("Other", named(o), context); }), first);
    EXPECT_EQ(outcomes("before", [&](auto o) { return message->preprocess(named(o), context); }), processing);
    EXPECT_EQ(outcomes("behind", [&](auto o) { return message->postprocess(named(o), context); }), processing);
    EXPECT_EQ(outcomes("extra", [&](auto o) { return message->process("Extra", named(o), context); }), processing);
    EXPECT_EQ(outcome([&] { return message->process("None", named(""), context); }),
              "throws Processing by name 'None' is not defined for the message  ");
    EXPECT_EQ(outcome([&] { message->validate("None", named(""), context); }),
              "throws Validator by name 'None' is not defined for the message  ");

    const std::string validated = "null!! / throws ?  ", processed = "!!!! / throws ?  Processing";
    EXPECT_EQ(outcomes("validation", [&](auto o) { return message->validate2(named(o), context); }), validated);
    EXPECT_EQ(outcomes("other", [&](auto o) { return message->validate2("Other", named(o), context); }), validated);
    EXPECT_EQ(outcomes("before", [&](auto o) { return message->preprocess2(named(o), context); }),
              "before" + processed);
    EXPECT_EQ(outcomes("behind", [&](auto o) { return message->postprocess2(named(o), context); }),
              "behind" + processed);
    EXPECT_EQ(outcomes("extra", [&](auto o) { return message->process2("Extra", named(o), context); }),
              "extra" + processed);

    const auto fails = [&](auto operation) { return errorOf<TransformException>(operation); };
    const std::string never = "unsupported operation parse for internal messages";
    EXPECT_EQ(fails([&] { message->parse(Binary(), context); }), never);
    EXPECT_EQ(fails([&] { message->parse(raw(""), context); }), never);
    EXPECT_EQ(fails([&] { message->parse(sourceIn(raw("")), context); }), never);
    EXPECT_EQ(fails([&] { message->parse2(Binary(), context); }), never);
    EXPECT_EQ(fails([&] { message->parse2(sourceIn(raw("")), context); }), never);
    EXPECT_EQ(outcome([&] { message->handleNormalizedObject(named("triggers?").get(), context); }),
              "throws ? Internal Message ");
    EXPECT_EQ(told(message->createObject()), "new");
    EXPECT_EQ(told(SmartPtr<DataObject>(message->createNormalizedObject())), "new");
  }
}

TEST(InternalMessage, isWrittenInTwoFormsAndProcessesNothingWithoutRules) {
  const SmartPtr<Transaction> transaction(new Transaction(false));
  const SmartPtr<IInternalMessage> wrapper(new BusinessTransactionWrapper(transaction.get()));
  const SmartPtr<DataObject> object = named("a");
  TransformContext context;
  EXPECT_EQ(wrapper->preprocess(object, context).get(), object.get());
  EXPECT_EQ(wrapper->postprocess2(object, context).value.get(), object.get());
  for (const std::string form : {"", "xml", "zarvik"}) {
    context.setProperty(IMessage::MESSAGE_FORMAT, form.c_str());
    const std::string expected =
        told(form == "zarvik" ? DataObjectIO::serialize(object.get()) : Binary(object->toXMLString()));
    ByteArrayOutputDevice device(DeviceInfo("", "", ""));
    transaction->serialize(object, device, context);
    EXPECT_EQ(told(Binary(device.getAsString(), static_cast<unsigned int>(device.getLength()))), expected);
    EXPECT_EQ(told(wrapper->serialize(object, context)), expected);
    EXPECT_EQ(told(wrapper->serialize2(object, context)), expected);
    EXPECT_EQ(told(wrapper->serializeMessage(object, context)), expected);
    EXPECT_EQ(told(wrapper->serializeMessage2(object, context)), expected);
  }
}

TEST(TransformExceptionInternalMessage, writesErrorsAsMessages) {
  const SmartPtr<TransformExceptionInternalMessage> message(new TransformExceptionInternalMessage);
  TransformContext context;
  const SmartPtr<DataObject> object = message->createObject();
  guardedCast<TransformException>(object.get())->setMessage("a");
  EXPECT_EQ(message->processNormalizedObject(object.get(), nullptr, context), object.get());
  EXPECT_EQ(message->serialize(object, context).toString(), TransformException("a").toXMLString());
}

}  // namespace
}  // namespace zarvik
