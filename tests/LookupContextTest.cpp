#include <algorithm>

#include "AbstractExternalMessage.h"
#include "Support.h"

namespace zarvik {
namespace {

struct Silent : AbstractExternalMessage {
  Silent() : AbstractExternalMessage("Silent") {}
  SmartPtr<ExternalObject> createExternalObject() override { return {}; }
  InputParser* getInputParser() override { return nullptr; }
  SimpleOutputWriter* getOutputWriter() override { return nullptr; }
};
struct External : Living<Silent> {};
struct Internal : Living<NoTransaction> {};
struct Mapping : Living<IMessageMapping> {};
struct Flow : Living<IMessageFlow> {};
struct Output : Living<SimpleXMLOutputFormat> {};
struct ObjectMapping : Living<INormalizedObjectMappingFormat> {
  DataObject** map(DataObject**, int, TransformContext&) override { return nullptr; }
  DataObject* map(DataObject*, TransformContext&) override { return nullptr; }
  zkstring getDestinationMessageName() override { return {}; }
  zkstring getSourceMessageName() override { return {}; }
};
struct Plain : Living<Object> {};
struct Protocol : Living<ContextOutputProtocol> {};

constexpr const char* names[] = {"external", "flow",   "internal", "mapping",  "nothing", "null",
                                 "objects",  "output", "plain",    "protocol", "nulls"};

/// A factory that makes nothing.
struct NullFactory : ObjectFactory {
  Object* newInstance() override { return nullptr; }
};

/// The registry with one binding of each kind.
struct Bindings {
  explicit Bindings(ILookupContext* registry) : registry(registry) {
    registry->bind("external", new GenericObjectFactory<External>);
    registry->bind("flow", new GenericObjectFactory<Flow>);
    registry->bind("internal", new GenericObjectFactory<Internal>);
    registry->bind("mapping", new GenericObjectFactory<Mapping>);
    registry->bind("null", nullptr);
    registry->bind("nulls", new NullFactory);
    registry->bind("objects", new GenericObjectFactory<ObjectMapping>);
    registry->bind("output", new GenericObjectFactory<Output>);
    registry->bind("plain", new GenericObjectFactory<Plain>);
    registry->bind("protocol", new Protocol);
  }
  ~Bindings() noexcept(false) {
    for (const char* name : names) registry->unbind(name);
  }

  const SmartPtr<ILookupContext> registry;
};

/// A trigger's context answers as the registry does.
template <class Context>
struct LookupContext : testing::Test {};
using Contexts = testing::Types<LookupContextImpl, TriggerContextImpl>;
TYPED_TEST_SUITE(LookupContext, Contexts, );

/// The names that `lookup` serves, and that it makes two objects for two calls; all else is refused with `refusal`.
template <class Lookup>
std::string servedBy(Lookup lookup, const std::string& before, const std::string& behind) {
  std::string served;
  for (const char* name : names) {
    try {
      const auto first = lookup(name);
      const auto second = lookup(name);
      EXPECT_NE(first.get(), second.get());
      EXPECT_TRUE(first->unique());
      served += name + std::string(" ");
    } catch (const TransformException& error) {
      EXPECT_EQ(error.getMessage(), (before + name + behind).c_str());
    }
  }
  return served;
}

TYPED_TEST(LookupContext, typedLookUpsMakeNewObjects) {
  const Bindings at(new TypeParam);
  const auto served = [&at](auto operation) {
    const auto lookup = [&](const char* name) { return ((*at.registry).*operation)(name); };
    EXPECT_NE(errorOf<NamingException>([&] { lookup("nothing"); }), "");
    return servedBy(lookup, "Unable to lookup '", "'");
  };
  EXPECT_EQ(served(&ILookupContext::lookupMessage), "external internal ");
  EXPECT_EQ(served(&ILookupContext::lookupExternalMessage), "external ");
  EXPECT_EQ(served(&ILookupContext::lookupInternalMessage), "internal ");
  EXPECT_EQ(served(&ILookupContext::lookupBusinessTransaction), "internal ");
  EXPECT_EQ(served(&ILookupContext::lookupMessageMapping), "mapping ");
  EXPECT_EQ(served(&ILookupContext::lookupMessageFlow), "flow ");
  EXPECT_EQ(served(&ILookupContext::lookupInputFormat), "");
  EXPECT_EQ(served(&ILookupContext::lookupOutputFormat), "output ");
  EXPECT_EQ(servedBy([&at](const char* name) { return at.registry->lookupNormalizedObjectMappingFormat(name); },
                     "NormalizedObjectMappingFormat not available at ", ""),
            "objects ");
  EXPECT_EQ(External::alive + Internal::alive + Output::alive + Plain::alive, 0);
}

TYPED_TEST(LookupContext, aProtocolIsBoundAsItIs) {
  const Bindings at(new TypeParam);
  EXPECT_EQ(at.registry->lookupOutputProtocol("protocol"), at.registry->lookup("protocol"));
  for (const char* name : {"nothing", "null", "output"}) {
    EXPECT_EQ(errorOf<TransformException>([&] { at.registry->lookupOutputProtocol(name); }),
              std::string("Device not available at ") + name);
  }
}

TYPED_TEST(LookupContext, listsNamesByWhatTheirFactoriesMake) {
  const Bindings at(new TypeParam);
  // Other modules may have bound names too, so only ours are looked at.
  const auto listed = [](StringList list) {
    std::string ours;
    for (const zkstring& name : list) {
      if (std::find(std::begin(names), std::end(names), name) != std::end(names))
        ours += name.c_str() + std::string(" ");
    }
    return ours;
  };
  EXPECT_EQ(listed(at.registry->getMessages()), "external internal ");
  EXPECT_EQ(listed(at.registry->getExternalMessages()), "external ");
  EXPECT_EQ(listed(at.registry->getInternalMessages()), "internal ");
  EXPECT_EQ(listed(at.registry->getMessageMappings()), "mapping ");
  EXPECT_EQ(listed(at.registry->getMessageFlows()), "flow ");
  EXPECT_EQ(listed(at.registry->getInputFormats()), "");
  EXPECT_EQ(listed(at.registry->getOutputFormats()), "output ");
  EXPECT_EQ(at.registry->getNormalizedObjectMappings().size(), 0);
  EXPECT_EQ(Plain::alive, 0);
}

TYPED_TEST(LookupContext, bindsANameOnce) {
  const Bindings at(new TypeParam);
  const SmartPtr<Protocol> held(new Protocol);
  Protocol::alive = 0;
  held->addRef();
  EXPECT_EQ(errorOf<NamingException>([&] { at.registry->bind("protocol", held.get()); }), "protocol already bound");
  EXPECT_TRUE(held->unique());
  EXPECT_EQ(errorOf<NamingException>([&] { at.registry->bind("protocol", new Plain); }), "protocol already bound");
  EXPECT_EQ(errorOf<NamingException>([&] { at.registry->bind("protocol", new Internal); }), "protocol already bound");
  EXPECT_EQ(errorOf<NamingException>([&] { at.registry->bind("protocol", nullptr); }), "protocol already bound");
  EXPECT_EQ(Plain::alive + Internal::alive, 0);

  at.registry->bind("null", held.get());
  EXPECT_EQ(LookupContextFactory::getLookupContext()->lookupComponent("null"), held.get());
  at.registry->rebind("protocol", held.get());
  EXPECT_EQ(Protocol::alive, -1);  // the one bound before is gone
  EXPECT_EQ(held->getRefCount(), 3);
  at.registry->unbind("null");
  at.registry->unbind("protocol");
  at.registry->unbind("protocol");
  EXPECT_TRUE(held->unique());
}

}  // namespace
}  // namespace zarvik
