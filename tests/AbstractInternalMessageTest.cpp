#include "AbstractInternalMessage.h"

#include <functional>

#include "BusinessProcessingRules.h"
#include "BusinessTransactionWrapper.h"
#include "ByteArrayInputSource.h"
#include "ByteArrayOutputDevice.h"
#include "DataObjectIO.h"
#include "RecordingMessage.h"
#include "Reporting.h"
#include "Support.h"
#include "TransformContext.h"
#include "TransformExceptionInternalMessage.h"
#include "Triggers.h"
#include "ValidationRules.h"

namespace zarvik {
namespace {

/// A step that notes its name. Each tests the object for the errors that are there for it: "pre!" is Pre's.
struct Step {
  void run(DataObject* object, ExceptionHandler* handler) const {
    *log += std::string(name) + " ";
    const std::string text = nameOf(object);
    const std::size_t own = text.find(name);
    if (own != std::string::npos) report(text.substr(own), handler);
  }
  const char* name;
  std::string* log;
};

class Processing : public BusinessProcessingRules {
 public:
  Processing(const char* name, std::string* log) : step{name, log} {}

 protected:
  void process(DataObject* object) override { step.run(object, exceptionHandler); }

 private:
  Step step;
};

class Validation : public ValidationRules {
 public:
  Validation(const char* name, std::string* log) : step{name, log} {}

 protected:
  void validate(DataObject* object) override { step.run(object, exceptionHandler); }

 private:
  Step step;
};

class LoggedTriggers : public Triggers {
 public:
  explicit LoggedTriggers(std::string* log) : Triggers(nullptr), step{"triggers", log} {}

 protected:
  void onNewMessage0(DataObject* message, TransformContext& /*context*/) override {
    step.run(message, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER);
  }
  void onBatchStart0(TransformContext& /*context*/) override {}
  void onBatchEnd0(TransformContext& /*context*/) override {}

 private:
  Step step;
};

class Transaction : public AbstractInternalMessage {
 public:
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
  DataObject* createNormalizedObject() override { return new TestRecord; }
  Triggers* getTriggers() override { return &triggers; }

  // That these are what `handleNormalizedObject` calls shows in brackets.
  using AbstractInternalMessage::postprocess;
  using AbstractInternalMessage::preprocess;
  using AbstractInternalMessage::validate;
  SmartPtr<DataObject> preprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += "(";
    return AbstractInternalMessage::preprocess(object, context);
  }
  void validate(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += "|";
    AbstractInternalMessage::validate(object, context);
  }
  SmartPtr<DataObject> postprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    log += ")";
    return AbstractInternalMessage::postprocess(object, context);
  }

  std::string log;

 private:
  Processing before{"before", &log};
  Processing behind{"behind", &log};
  Processing extra{"extra", &log};
  Validation validation{"validation", &log};
  Validation other{"other", &log};
  LoggedTriggers triggers{&log};
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
      {true, "before?", "throws ? Internal Message Processing", "(before "},
      {true, "validation!", "throws ! Internal Message ", "(before |validation "},
      {true, "behind?", "throws ? Internal Message Processing", "(before |validation )behind "},
      {false, "triggers?", "throws ? Internal Message ", "|validation triggers "},
  };
  for (const Row& row : rows) {
    const SmartPtr<Transaction> transaction(new Transaction(row.processed));
    TransformContext context;
    const SmartPtr<DataObject> object(recordOf(row.object).get());
    for (const bool owned : {true, false}) {
      transaction->log.clear();
      if (!owned) object->decRef();
      const int count = object->getRefCount();
      EXPECT_EQ(outcome([&] { transaction->handleNormalizedObject(object.get(), context); }), row.outcome);
      EXPECT_EQ(transaction->log, row.steps) << row.object;
      EXPECT_EQ(object->getRefCount(), count) << row.object;
      if (!owned) object->addRef();
    }
  }
}

TEST(InternalMessage, plainOperationsThrowTheFirstErrorAndTheOthersCollect) {
  using Operation = std::function<std::string(Transaction&, const SmartPtr<DataObject>&, TransformContext&)>;
  struct Row {
    const char* step;
    Operation operation;
    const char* reporting;  // when the step meets "!!"
    const char* throwing;   // when it meets "!?"
  };
  const auto line = [](const char* step, auto operation, const char* reporting, const char* throwing) {
    return Row{step,
               [=](Transaction& transaction, const SmartPtr<DataObject>& object, TransformContext& context) {
                 return outcome([&] { return operation(transaction, object, context); });
               },
               reporting, throwing};
  };
  const Row rows[] = {
      line(
          "validation", [](auto& t, auto& o, auto& c) { t.validate(o, c); }, "throws !  ", "throws !  "),
      line(
          "other", [](auto& t, auto& o, auto& c) { t.validate("Other", o, c); }, "throws !  ", "throws !  "),
      line(
          "validation", [](auto& t, auto& o, auto& c) { return t.validate2(o, c); }, "null [!] [!]", "throws ?  "),
      line(
          "other", [](auto& t, auto& o, auto& c) { return t.validate2("Other", o, c); }, "null [!] [!]", "throws ?  "),
      line(
          "before", [](auto& t, auto& o, auto& c) { return t.preprocess(o, c); }, "throws !  Processing",
          "throws !  Processing"),
      line(
          "before", [](auto& t, auto& o, auto& c) { return t.preprocess2(o, c); }, "before!! [!] [!]",
          "throws ?  Processing"),
      line(
          "behind", [](auto& t, auto& o, auto& c) { return t.postprocess(o, c); }, "throws !  Processing",
          "throws !  Processing"),
      line(
          "behind", [](auto& t, auto& o, auto& c) { return t.postprocess2(o, c); }, "behind!! [!] [!]",
          "throws ?  Processing"),
      line(
          "extra", [](auto& t, auto& o, auto& c) { return t.process("Extra", o, c); }, "throws !  Processing",
          "throws !  Processing"),
      line(
          "extra", [](auto& t, auto& o, auto& c) { return t.process2("Extra", o, c); }, "extra!! [!] [!]",
          "throws ?  Processing"),
      line(
          "none", [](auto& t, auto& o, auto& c) { return t.process("None", o, c); },
          "throws Processing by name 'None' is not defined for the message  ",
          "throws Processing by name 'None' is not defined for the message  "),
      line(
          "none", [](auto& t, auto& o, auto& c) { t.validate("None", o, c); },
          "throws Validator by name 'None' is not defined for the message  ",
          "throws Validator by name 'None' is not defined for the message  "),
  };
  const SmartPtr<Transaction> transaction(new Transaction(true));
  TransformContext context;
  for (const Row& row : rows) {
    const std::string step = row.step;
    EXPECT_EQ(row.operation(*transaction, recordOf(step + "!!").get(), context), row.reporting) << step;
    EXPECT_EQ(row.operation(*transaction, recordOf(step + "!?").get(), context), row.throwing) << step;
  }
}

TEST(InternalMessage, processesNothingWithoutTheRules) {
  const SmartPtr<Transaction> transaction(new Transaction(false));
  TransformContext context;
  const SmartPtr<DataObject> object(recordOf("a").get());
  EXPECT_EQ(transaction->preprocess(object, context).get(), object.get());
  EXPECT_EQ(transaction->postprocess(object, context).get(), object.get());
  EXPECT_EQ(told(transaction->preprocess2(object, context)), "a");
  EXPECT_EQ(told(transaction->postprocess2(object, context)), "a");
}

TEST(InternalMessage, isNeverParsed) {
  const SmartPtr<Transaction> transaction(new Transaction(false));
  TransformContext context;
  const RawMessage message(new ByteArrayInputSource(Binary()));
  InputSource& source = *message;
  const auto refusal = [](auto parse) {
    EXPECT_EQ(errorOf<TransformException>(parse), "unsupported operation parse for internal messages");
  };
  refusal([&] { transaction->parse(Binary(), context); });
  refusal([&] { transaction->parse(message, context); });
  refusal([&] { transaction->parse(source, context); });
  refusal([&] { transaction->parse2(Binary(), context); });
  refusal([&] { transaction->parse2(source, context); });
}

TEST(InternalMessage, isWrittenAsXMLUnlessTheContextSaysOtherwise) {
  const SmartPtr<Transaction> transaction(new Transaction(false));
  const SmartPtr<DataObject> object(recordOf("a").get());
  for (const char* form : {"", "xml", "zarvik"}) {
    TransformContext context;
    context.setProperty(IMessage::MESSAGE_FORMAT, form);
    const std::string expected =
        told(form == std::string("zarvik") ? DataObjectIO::serialize(object.get()) : Binary(object->toXMLString()));
    ByteArrayOutputDevice device(DeviceInfo("", "", ""));
    transaction->serialize(object, device, context);
    int length = 0;
    const char* const bytes = device.getAsBytes(length);
    EXPECT_EQ(std::string(bytes, static_cast<unsigned int>(length)), expected) << form;
    EXPECT_EQ(told(transaction->serialize(object, context)), expected) << form;
    EXPECT_EQ(told(transaction->serialize2(object, context)), expected) << form;
    EXPECT_EQ(told(transaction->serializeMessage(object, context)), expected) << form;
    EXPECT_EQ(told(transaction->serializeMessage2(object, context)), expected) << form;
  }
}

TEST(BusinessTransactionWrapper, handsEverythingOn) {
  TransformContext context;
  const Binary bytes;
  const RawMessage message(new ByteArrayInputSource(bytes));
  InputSource& source = *message;
  const zkstring name("name");
  const SmartPtr<DataObject> object(recordOf("a").get());
  const auto callAll = [&](IInternalMessage& called) {
    called.createObject();
    called.parse(bytes, context);
    called.parse(message, context);
    called.parse(source, context);
    called.parse2(bytes, context);
    called.parse2(source, context);
    called.validate(name, object, context);
    called.validate(object, context);
    called.validate2(name, object, context);
    called.validate2(object, context);
    called.serialize(object, context);
    called.serialize2(object, context);
    called.serializeMessage(object, context);
    called.serializeMessage2(object, context);
    called.createNormalizedObject();
    called.handleNormalizedObject(object.get(), context);
    called.preprocess(object, context);
    called.preprocess2(object, context);
    called.process2(name, object, context);
    called.postprocess(object, context);
    called.process(name, object, context);
    called.postprocess2(object, context);
  };
  const SmartPtr<RecordingTransaction> direct(new RecordingTransaction);
  const SmartPtr<RecordingTransaction> wrapped(new RecordingTransaction);
  const SmartPtr<BusinessTransactionWrapper> wrapper(new BusinessTransactionWrapper(wrapped.get()));
  callAll(*direct);
  callAll(*wrapper);
  EXPECT_EQ(wrapped->calls.str(), direct->calls.str());
}

TEST(TransformExceptionInternalMessage, writesErrorsAsMessages) {
  const SmartPtr<TransformExceptionInternalMessage> message(new TransformExceptionInternalMessage);
  TransformContext context;
  const SmartPtr<DataObject> object = message->createObject();
  auto* const error = guardedCast<TransformException>(object.get());
  EXPECT_EQ(error->getMessage(), "");
  error->setMessage("a");
  EXPECT_EQ(message->processNormalizedObject(object.get(), nullptr, context), object.get());
  EXPECT_EQ(message->serialize(object, context).toString(), TransformException("a").toXMLString());
}

}  // namespace
}  // namespace zarvik
