#include "Triggers.h"

#include <functional>
#include <memory>

#include "TestRecord.h"

namespace zarvik {
namespace {

std::string seen;              ///< what came where
std::function<void()> within;  ///< done once, by the next that sees something

void seenBy(const char* where, DataObject* object, TransformContext& context) {
  if (within) std::exchange(within, nullptr)();
  seen += where;
  for (const char* name : {"output.destination", "output.device", "input.source"}) {
    seen += (" " + context.getProperty(name)).c_str();
  }
  seen += (":" + object->getFieldVal(TestRecord::NAME)->getString() + ";").c_str();
}

struct Format : Living<IOutputFormat> {
  void setOutputDevice(OutputDevice* /*device*/) override {}
  void write(DataObject* input, TransformContext& context) override { seenBy("format", input, context); }
};

struct Mapping : Living<INormalizedObjectMappingFormat> {
  DataObject** map(DataObject**, int, TransformContext&) override { return nullptr; }
  DataObject* map(DataObject* source, TransformContext& context) override {
    seenBy("mapping", source, context);
    return TestRecord::named("mapped");
  }
  zkstring getDestinationMessageName() override { return "target"; }
  zkstring getSourceMessageName() override { return {}; }
};

struct Target : Living<NoTransaction> {
  void handleNormalizedObject(DataObject* object, TransformContext& context) override {
    seenBy("target", object, context);
    if (context.getProperty("input.source") == "bad") throw NamingException("refused");
  }
};

/// Triggers of one context, which is fired for every message.
struct Fired : Triggers {
  Fired(AbstractTriggerContext& context) : Triggers(context.getBusinessTransaction()), context(context) {}
  void onNewMessage0(DataObject* message, TransformContext& callContext) override {
    getTriggerObject(context)->onNewMessage(message, callContext);
  }
  void onBatchStart0(TransformContext& callContext) override { getTriggerObject(context)->onBatchStart(callContext); }
  void onBatchEnd0(TransformContext& callContext) override { getTriggerObject(context)->onBatchEnd(callContext); }
  using Triggers::getTriggerObject;

  AbstractTriggerContext& context;
};

/// A trigger of class `className`, "there" as its identity, and a message to fire it with.
struct Setting {
  explicit Setting(const char* className)
      : triggerContext(new TriggerContextImpl({}, className, "there")), triggers(*triggerContext) {
    registerClassRouterTrigger();
    registerClassInternalRouterTrigger();
    registry->rebind("first", new GenericObjectFactory<Format>);
    registry->rebind("second", new GenericObjectFactory<Format>);
    registry->rebind("mapping", new GenericObjectFactory<Mapping>);
    registry->rebind("target", new GenericObjectFactory<Target>);
    context.setProperty("input.source", "host");
    context.setProperty("output.device", "file");
    seen.clear();
  }
  ~Setting() noexcept(false) {
    for (const char* name : {"first", "second", "mapping", "target"}) registry->unbind(name);
  }
  std::string fire() {
    seen.clear();
    triggers.onNewMessage(message.get(), context);
    return seen;
  }

  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  const SmartPtr<TestRecord> message = SmartPtr<TestRecord>(TestRecord::named("message"));
  TransformContext context;
  SmartPtr<TriggerContextImpl> triggerContext;
  Fired triggers;
};

TEST(RouterTrigger, writesThroughTheFormatThatIsNamed) {
  Setting at("RouterTrigger");
  constexpr char missing[] = "RouterTrigger: Output format is not configured (null)";
  EXPECT_EQ(errorOf<TransformException>([&] { at.fire(); }), missing);
  EXPECT_EQ(errorOf<TransformException>([&] { at.triggers.onBatchStart0(at.context); }), missing);
  EXPECT_EQ(errorOf<TransformException>([&] { at.triggers.onBatchEnd0(at.context); }), missing);
  at.context.setProperty("output.format", "nowhere");
  EXPECT_EQ(errorOf<NamingException>([&] { at.triggers.onBatchEnd0(at.context); }), "Unable to lookup 'nowhere'");

  at.context.setProperty("output.format", "first");
  at.context.setProperty("output.destination", "overlaid");
  at.triggers.onBatchStart0(at.context);
  EXPECT_EQ(Format::alive, 1);
  EXPECT_EQ(at.fire() + at.fire(), "format there file host:message;format there file host:message;");
  EXPECT_EQ(Format::alive, 1);
  at.context.setProperty("output.format", "second");
  at.context.setProperty("input.source", "other");
  EXPECT_EQ(at.fire(), "format there file other:message;");
  EXPECT_EQ(Format::alive, 2);

  at.triggerContext = new TriggerContextImpl({}, "RouterTrigger", "elsewhere");
  EXPECT_EQ(Format::alive, 0);  // the context took its trigger along
}

TEST(RouterTrigger, prefersItsOwnProperties) {
  Setting at("RouterTrigger");
  at.triggerContext->addProperty("output.format", "first");
  at.triggerContext->addProperty("output.device", "queue");
  at.triggerContext->addProperty("output.device", "ignored");
  at.context.setProperty("output.format", "nowhere");
  EXPECT_EQ(at.fire(), "format there queue host:message;");
  EXPECT_EQ(at.context.getProperty("output.device"), "file");
}

TEST(InternalRouterTrigger, handsOnWhatItMaps) {
  Setting at("InternalRouterTrigger");
  EXPECT_EQ(errorOf<NamingException>([&] { at.fire(); }), "Property internalmapping.format not found");
  EXPECT_EQ(at.triggerContext->getTriggerObject(), nullptr);
  at.triggerContext->addProperty("internalmapping.format", "mapping");
  at.registry->unbind("target");
  EXPECT_EQ(errorOf<NamingException>([&] { at.fire(); }), "Unable to lookup 'target'");
  at.registry->bind("target", new GenericObjectFactory<Target>);

  const std::string expected = "mapping there file host:message;target there file host:mapped;";
  EXPECT_EQ(at.fire() + at.fire(), expected + expected);
  at.triggers.onBatchStart0(at.context);
  at.triggers.onBatchEnd0(at.context);
  EXPECT_EQ(Mapping::alive, 1);
  EXPECT_EQ(Target::alive, 1);
  at.context.setProperty("input.source", "bad");
  EXPECT_EQ(errorOf<NamingException>([&] { at.fire(); }), "refused");  // and what was mapped is gone
}

TEST(Triggers, haveTheirContextAgainBehindACallWithinTheirs) {
  constexpr std::pair<const char*, const char*> rows[] = {
      {"RouterTrigger", "format there  ack:message;format there file host:message;"},
      {"InternalRouterTrigger",
       "mapping there  ack:message;target there  ack:mapped;mapping there file host:message;"
       "target there file host:mapped;"}};
  for (const auto& [name, expected] : rows) {
    Setting at(name);
    at.triggerContext->addProperty("output.format", "first");
    at.triggerContext->addProperty("internalmapping.format", "mapping");
    within = [&] {
      const auto own = std::make_unique<TransformContext>();
      own->setProperty("input.source", "ack");
      at.triggers.onNewMessage(at.message.get(), *own);
    };
    EXPECT_EQ(at.fire(), expected);
  }
}

TEST(Triggers, makeEachTriggerOnce) {
  Setting at("RouterTrigger");
  ITrigger* const trigger = at.triggers.getTriggerObject(*at.triggerContext);
  EXPECT_EQ(at.triggers.getTriggerObject(*at.triggerContext), trigger);
  at.triggerContext->setTriggerObject(trigger);
  Properties none;
  EXPECT_EQ(errorOf<TransformException>([&] { trigger->execute(none); }), "Nothing to execute");
  EXPECT_EQ(errorOf<TransformException>([&] { at.triggers.invokeTrigger(none); }),
            "No on-demand trigger matching the condition specified");
}

TEST(Triggers, refuseClassesThatAreNoTriggers) {
  struct Plain : Living<ObjectRef> {};
  UserClassManager::registerClass("NoTrigger", new GenericObjectFactory<Plain>);
  const auto fire = [] { Setting("NoTrigger").fire(); };
  EXPECT_EQ(errorOf<NamingException>(fire), "Not a valid trigger class - 'NoTrigger'.");
  EXPECT_EQ(Plain::alive, 0);
  EXPECT_EQ(errorOf<TransformException>([] { Setting("Nowhere").fire(); }), "Class not found Nowhere");
}

TEST(TriggerContext, keepsTheConfigurationOfATrigger) {
  const SmartPtr<IInternalMessage> message(new Target);
  const SmartPtr<TriggerContextImpl> context(new TriggerContextImpl);
  context->init(message, "Class", "identity");
  context->addProperty("a", "1");
  context->addProperty("a", "2");
  zkstring value = "untouched";
  EXPECT_FALSE(context->getProperty("b", value));
  EXPECT_EQ(value + context->getProperty("a"), "untouched1");
  EXPECT_EQ(errorOf<NamingException>([&] { context->getProperty("b"); }), "Property b not found");
  EXPECT_EQ(Fired(*context).getBusinessTransaction().get(), message.get());
}

}  // namespace
}  // namespace zarvik
