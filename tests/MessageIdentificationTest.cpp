#include "CartridgeMessageIdentifier.h"
#include "DataObject.h"
#include "LookupContextFactory.h"
#include "MessageHeaderAdapter.h"
#include "MessageIdentificationService.h"
#include "ObjectFactory.h"
#include "StringInputSource.h"
#include "Support.h"
#include "TransformContext.h"
#include "UserClassManager.h"

namespace zarvik {
namespace {

/// Knows no input; notes what it is asked and told.
struct Deaf : MessageIdentifier {
  explicit Deaf(const char* name = "made") : name(name) {}
  ~Deaf() override { log += name + std::string(" gone "); }
  DataObject* identifyMessage(InputSource& /*source*/) override {
    log += name + std::string(" asked ");
    return nullptr;
  }
  void setProperty(const zkstring& key, const zkstring& value) override {
    log += name + (":" + std::string(key.c_str())) + "=" + value.c_str() + " ";
  }
  const char* name;
  inline static std::string log;
};

struct NoIdentifier : Object {
  NoIdentifier() { ++alive; }
  ~NoIdentifier() override { --alive; }
  inline static int alive = 0;
};

TEST(MessageIdentificationService, asksInOrderAndConfiguresTheLast) {
  Deaf::log.clear();
  UserClassManager::registerClass("Deaf", new GenericObjectFactory<Deaf>);
  {
    MessageIdentificationService service;
    StringInputSource source("x");
    EXPECT_EQ(service.identifyMessage(source), nullptr);
    service.registerMessageIdentifer(new Deaf("first"));
    service.registerMessageIdentifer("Deaf");
    service.setMessageIdentiferProperty("k", "v");
    const MessageIdentificationService copy(service);
    EXPECT_EQ(service.identifyMessage(source), nullptr);
    EXPECT_EQ(service.parseMessageHeader("x", 1), nullptr);
  }
  EXPECT_EQ(Deaf::log, "made:k=v first asked made asked first asked made asked first gone made gone ");
}

TEST(MessageIdentificationService, refusesClassesThatAreNoIdentifiers) {
  UserClassManager::registerClass("NoIdentifier", new GenericObjectFactory<NoIdentifier>);
  MessageIdentificationService service;
  EXPECT_EQ(errorOf<TransformException>([&] { service.registerMessageIdentifer("Unknown"); }),
            "Class not found Unknown");
  EXPECT_THROW(service.registerMessageIdentifer("NoIdentifier"), ClassCastException);
  EXPECT_EQ(NoIdentifier::alive, 0);
}

TEST(CartridgeMessageIdentifier, needsTheNameOfAFormat) {
  const SmartPtr<Object> instance(UserClassManager::createInstance("CartridgeMessageIdentifier"));
  auto& identifier = dynamic_cast<CartridgeMessageIdentifier&>(*instance);
  StringInputSource source("x");
  const auto identify = [&] { identifier.identifyMessage(source); };
  identifier.setProperty("input.formats", "X");
  EXPECT_EQ(errorOf<TransformException>(identify),
            "The property 'input.format' not set for CartridgeMessageIdentifier");
  identifier.setProperty("input.format", "Missing");
  EXPECT_EQ(errorOf<NamingException>(identify), "Unable to lookup 'Missing'");
}

/// Fails with the origin that its context names.
struct FailingFormat : IInputFormat {
  FailingFormat() { ++made; }
  DataObject* handleInput(InputSource& source, TransformContext& context) override {
    int length = 0;
    source.getAsBytes(length);
    if (length == 0) return nullptr;
    throw FieldParsingException(context.getProperty(TransformContext::INPUT_SOURCE_PROPERTY));
  }
  void processInput(InputSource& /*source*/, TransformContext& /*context*/) override {}
  inline static int made = 0;
};

TEST(CartridgeMessageIdentifier, parsesWithTheFormatItKeeps) {
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  registry->bind("Failing", new GenericObjectFactory<FailingFormat>);
  MessageIdentificationService service;
  service.registerMessageIdentifer("CartridgeMessageIdentifier");
  service.setMessageIdentiferProperty("input.format", "Failing");
  StringInputSource bad("x");
  StringInputSource empty("");
  EXPECT_EQ(service.identifyMessage(empty), nullptr);
  EXPECT_EQ(errorOf<FieldParsingException>([&] { service.identifyMessage(bad); }), "MessageID");
  EXPECT_EQ(FailingFormat::made, 1);
  registry->unbind("Failing");
}

TEST(MessageHeader, namesItself) {
  struct Header : MessageHeader {
    zkstring getMessageFormat() override { return "F"; }
    zkstring getMessageType() override { return "T"; }
    zkstring getMessageVersion() override { return "V"; }
    zkstring getHeaderField(const zkstring& /*name*/) override { return {}; }
  } header;
  EXPECT_EQ(header.stringform(), "MessageFormat = F, Message Version = V, Message Type = T");
}

}  // namespace
}  // namespace zarvik
