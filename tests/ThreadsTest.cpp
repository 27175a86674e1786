#include <thread>

#include "LookupContextFactory.h"
#include "Support.h"

namespace zarvik {
namespace {

/// Counts the messages of its own instance, and asks the registry and an empty context on the way.
class CountingFormat : public IInputFormat {
 public:
  DataObject* handleInput(InputSource& /*source*/, TransformContext& /*context*/) override { return nullptr; }
  void processInput(InputSource& /*source*/, TransformContext& context) override {
    TransformContextWrapper unset;
    ASSERT_EQ(unset.getProperty("threads.any"), "");
    unset.clear();
    context.setObjectProperty("threads.format", this);
    ++count;
  }
  int count = 0;
};

/// Routes FIX and SIAC Canonical messages, and some that nobody knows, with all that a thread keeps for itself.
void routeMessages() {
  MessageRouter router;
  for (const char* type : {"D", "NB"}) {
    auto* const row = new MessageConfiguration;
    row->setMessageType(type);
    row->setContextProperty(TransformContext::INPUT_FORMAT_PROPERTY, "threads.counting");
    router.addMessageConfiguration(row);
  }
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  TransformContext context;
  constexpr int rounds = 100;
  for (int i = 0; i < rounds; ++i) {
    for (const char* text : {"8=FIX.4.2\x01"
                             "9=5\x01"
                             "35=D\x01",
                             "10001=Canonical 1.0\x01"
                             "10003=NB\x01",
                             "unknown"}) {
      StringInputSource source(text);
      source.setStringProperty("correlationId", text);
      try {
        router.processMessage(source, context);
      } catch (const UnrecognizedMessageException& error) {
        ASSERT_EQ(error.getMessage(), "Unrecognized message format");
      }
    }
    ASSERT_EQ(Resources::getProperty("SRT100.message").empty(), false);
    ASSERT_EQ(registry->getInputFormats().contains("threads.counting"), true);
    const SmartPtr<Object> made(UserClassManager::createInstance("CartridgeMessageIdentifier"));
    ASSERT_THROW(registry->lookupOutputFormat("threads.counting"), NamingException);
  }
  const auto* const format = dynamic_cast<CountingFormat*>(context.getObjectProperty("threads.format"));
  ASSERT_NE(format, nullptr);
  EXPECT_EQ(format->count, 2 * rounds);
}

TEST(Threads, routeAtOnceWithWhatIsTheirOwn) {
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  MessageIdentificationService::getDefault();
  registry->bind("threads.counting", new GenericObjectFactory<CountingFormat>);
  std::thread threads[4];
  for (std::thread& thread : threads) thread = std::thread(routeMessages);
  for (std::thread& thread : threads) thread.join();
  registry->unbind("threads.counting");
}

}  // namespace
}  // namespace zarvik
