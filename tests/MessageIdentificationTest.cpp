#include "CartridgeMessageIdentifier.h"
#include "Support.h"
#include "fix/FIXText.h"

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

struct NoIdentifier : Living<Object> {};

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

/// The fields that are not null of what the default service says of a message ('|' stands for SOH), or its error.
std::string headerOf(const std::string& message) {
  StringInputSource source(zkstring(soh(message).c_str()));
  try {
    const SmartPtr<DataObject> header(MessageIdentificationService::getDefault()->identifyMessage(source));
    if (header.isNull()) return "unknown";
    std::string fields;
    for (int i = 0; i < header->getFieldCount(); ++i) {
      const SmartPtr<Object> field(header->getField(i));
      if (!field.isNull())
        fields += std::string(header->getFieldName(i).c_str()) + "=" + field->toString().c_str() + "|";
    }
    return fields;
  } catch (const FIXParsingException& error) {
    return std::string("FIX: ") + error.getMessage().c_str();
  } catch (const SIACCanonicalParsingException& error) {
    return std::string("SIAC: ") + error.getMessage().c_str();
  }
}

TEST(MessageIdentificationService, knowsFixAndSiacCanonicalByDefault) {
  constexpr const char* rows[][2] = {
      {"", "unknown"},
      {"8=FI", "unknown"},
      {"10001=Canonica", "unknown"},
      {"8=FIX", "MessageFormat=FIX|MessageVersion=|BeginString=FIX|"},
      {"8=FIX.4.2|9=100|35=D|49=A|56=B|34=7|52=20010101-00:00:00|11=X|50=behind|",
       "MessageFormat=FIX|MessageVersion=4.2|MessageType=D|BeginString=FIX.4.2|BodyLength=100|MsgType=D|"
       "SenderCompID=A|TargetCompID=B|MsgSeqNum=7|"},
      {"10001=Canonical 1.0|10002=120|25001=32|10003=NB|10004=A|10005=O|10006=D|10007=9|500=x|",
       "MessageFormat=Canonical|MessageVersion=1.0|MessageType=NB|CFT_CanonicalVersion=Canonical 1.0|"
       "CFT_BodyLength=120|CFT_SIACMsgType=NB|CFT_MsgSubType=A|CFT_MsgOrigin=O|CFT_MsgDest=D|CFT_MsgSeqNo=9|"},
      {"8=FIX.4.2|x", "FIX: [col 12] 'Name or value' can't be empty. Unable to parse tag=value of form x"},
  };
  for (const auto& [message, header] : rows) EXPECT_EQ(headerOf(message), header) << message;
  EXPECT_EQ(headerOf("10001=Canonical|10007=abc|").substr(0, 24), "SIAC: [col 26] [col 26] ");
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
