#include "AbstractInternalMessage.h"

#include "BusinessProcessingRules.h"
#include "BusinessTransactionWrapper.h"
#include "ByteArrayInputSource.h"
#include "ByteArrayOutputDevice.h"
#include "DataObjectIO.h"
#include "Reporting.h"
#include "Support.h"
#include "TransformContext.h"
#include "TransformExceptionInternalMessage.h"
#include "Triggers.h"
#include "ValidationRules.h"

namespace zarvik {
namespace {

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
  struct Row {
    bool processed;
    const char* object;
    const char* outcome;
    const char* steps;
  };
  constexpr Row rows[] = {
      {false, "a", "done", "|validation triggers "},
      {true, "a", "done", "(before |validation )behind triggers "},
      {true, "before!", "throws ! Internal Message Processing", "(before "},
      {true, "validation?", "throws ? Internal Message ", "(before |validation "},
      {true, "behind!", "throws ! Internal Message Processing", "(before |validation )behind "},
      {false, "triggers?", "throws ? Internal Message ", "|validation triggers "},
  };
  for (const Row& row : rows) {
    const SmartPtr<Transaction> transaction(new Transaction(row.processed));
    TransformContext context;
    DataObject* const object = TestRecord::named(row.object);
    EXPECT_EQ(outcome([&] { transaction->handleNormalizedObject(object, context); }), row.outcome);
    EXPECT_EQ(object->getRefCount(), 0);
    const SmartPtr<DataObject> owner(object);
    EXPECT_EQ(outcome([&] { transaction->handleNormalizedObject(object, context); }), row.outcome);
    EXPECT_EQ(object->getRefCount(), 1);
    EXPECT_EQ(transaction->log, std::string(row.steps) + row.steps);
  }
}

TEST(InternalMessage, plainOperationsThrowTheFirstErrorAndTheOthersCollectAsDoThoseOfAWrapper) {
  const SmartPtr<Transaction> transaction(new Transaction(true));
  const SmartPtr<BusinessTransactionWrapper> wrapper(new BusinessTransactionWrapper(transaction.get()));
  TransformContext context;
  for (IInternalMessage* message :
       {static_cast<IInternalMessage*>(transaction.get()), static_cast<IInternalMessage*>(wrapper.get())}) {
    // The step meets two errors that it reports, or one and another that it throws.
    const auto test = [](const std::string& step, const std::string& reporting, const std::string& throwing,
                         auto operation) {
      const auto on = [&](const char* errors) {
        const SmartPtr<DataObject> object(TestRecord::named((step + errors).c_str()));
        return outcome([&] { return operation(object); });
      };
      EXPECT_EQ(on("!!"), reporting) << step;
      EXPECT_EQ(on("!?"), throwing) << step;
    };
    const auto plain = [&](const char* step, const std::string& error, auto operation) {
      test(step, "throws " + error, "throws " + error, operation);
    };
    plain("validation", "!  ", [&](auto& o) { message->validate(o, context); });
    plain("other", "!  ", [&](auto& o) { message->validate("Other", o, context); });
    plain("before", "!  Processing", [&](auto& o) { return message->preprocess(o, context); });
    plain("behind", "!  Processing", [&](auto& o) { return message->postprocess(o, context); });
    plain("extra", "!  Processing", [&](auto& o) { return message->process("Extra", o, context); });
    plain("", "Processing by name 'None' is not defined for the message  ",
          [&](auto& o) { return message->process("None", o, context); });
    plain("", "Validator by name 'None' is not defined for the message  ",
          [&](auto& o) { message->validate("None", o, context); });
    test("validation", "null!!", "throws ?  ", [&](auto& o) { return message->validate2(o, context); });
    test("other", "null!!", "throws ?  ", [&](auto& o) { return message->validate2("Other", o, context); });
    test("before", "before!!!!", "throws ?  Processing", [&](auto& o) { return message->preprocess2(o, context); });
    test("behind", "behind!!!!", "throws ?  Processing", [&](auto& o) { return message->postprocess2(o, context); });
    test("extra", "extra!!!!", "throws ?  Processing", [&](auto& o) { return message->process2("Extra", o, context); });
    const RawMessage raw(new ByteArrayInputSource(Binary()));
    InputSource& source = *raw;
    const char* const never = "unsupported operation parse for internal messages  ";
    plain("", never, [&](auto&) { return message->parse(Binary(), context); });
    plain("", never, [&](auto&) { return message->parse(raw, context); });
    plain("", never, [&](auto&) { return message->parse(source, context); });
    plain("", never, [&](auto&) { return message->parse2(Binary(), context); });
    plain("", never, [&](auto&) { return message->parse2(source, context); });
    test("triggers", "throws ? Internal Message ", "throws ? Internal Message ", [&](auto& o) {
      o->setField(TestRecord::NAME, StringObject("triggers?"));
      message->handleNormalizedObject(o.get(), context);
    });
    EXPECT_EQ(told(message->createObject()), "new");
    EXPECT_EQ(told(SmartPtr<DataObject>(message->createNormalizedObject())), "new");
  }
}

TEST(InternalMessage, isWrittenInTwoFormsAndProcessesNothingWithoutRules) {
  const SmartPtr<Transaction> transaction(new Transaction(false));
  const SmartPtr<IInternalMessage> wrapper(new BusinessTransactionWrapper(transaction.get()));
  const SmartPtr<DataObject> object(TestRecord::named("a"));
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
