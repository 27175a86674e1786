#include "MessageRouter.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "Support.h"

namespace zarvik {
namespace {

/// "a=1 b= c=2" as properties.
Properties propertiesOf(const std::string& text) {
  Properties properties;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const std::size_t equal = word.find('=');
    properties[word.substr(0, equal).c_str()] = word.substr(equal + 1).c_str();
  }
  return properties;
}

/// Metadata with a text field for each property; the caller's.
DataObjectMetaInfo* metaInfoOf(const Properties& fields) {
  std::vector<FieldMetaInfo> all;
  all.reserve(fields.size());
  std::vector<FieldMetaInfo*> pointers;
  for (const auto& [name, text] : fields) {
    pointers.push_back(&all.emplace_back(name, KelvaraTypes::STRING_TYPE, true));
  }
  return new DataObjectMetaInfo("Message", pointers.data(), static_cast<int>(pointers.size()));
}

/// A message of the given header fields. A field read is a new object.
class Message : public GenericDataObject {
 public:
  explicit Message(const Properties& fields) : GenericDataObject(metaInfoOf(fields), true) {
    for (const auto& [name, text] : fields) setField(name, text);
  }
  using GenericDataObject::getField;
  Object* getField(int index) const override {
    ++reads;
    return GenericDataObject::getField(index);
  }
  using GenericDataObject::toXMLString;
  zkstring toXMLString() override { return "<Message/>"; }
  inline static int reads = 0;
};

/// Recognises everything but "?"; the text names the header fields.
class Identifier : public MessageIdentifier {
 public:
  ~Identifier() override { ++deleted; }
  DataObject* identifyMessage(InputSource& source) override {
    const std::string text = dynamic_cast<StringInputSource&>(source).getAsString().c_str();
    return text == "?" ? nullptr : new Message(propertiesOf(text));
  }
  inline static int deleted = 0;
};

/// Writes its name into the log; raises what "raise" asks for.
class Format : public IInputFormat {
 public:
  explicit Format(const std::string& name) : name(name) {}
  DataObject* handleInput(InputSource& /*source*/, TransformContext& /*context*/) override { return nullptr; }
  void processInput(InputSource& /*source*/, TransformContext& context) override {
    log += name + " ";
    const zkstring raise = context.getProperty("raise");
    if (raise == "other") throw std::runtime_error("other");
    if (raise.empty()) return;
    NamingException error("from the format");
    error.setSeverity(raise);
    throw error;
  }
  inline static std::string log;

 private:
  std::string name;
};

class FormatFactory : public ObjectFactory {
 public:
  explicit FormatFactory(const char* name) : name(name) {}
  Object* newInstance() override { return new Format(name + std::to_string(++made)); }

 private:
  std::string name;
  int made = 0;
};

MessageIdentificationService* serviceOf(MessageIdentifier* identifier) {
  auto* const service = new MessageIdentificationService;
  service->registerMessageIdentifer(identifier);
  return service;
}

void fill(MessageConfiguration& row, const char* conditions) {
  for (const auto& [name, value] : propertiesOf(conditions)) {
    if (name == "MessageFormat") row.setMessageFormat(value);
    if (name == "MessageVersion") row.setMessageVersion(value);
    if (name == "MessageType") row.setMessageType(value);
    if (name.find("Message") != 0) row.setProperty(name, value);
  }
}

/// A router, with "A" and "B" bound to formats and "Other" to a factory of something else.
struct Routing {
  Routing() {
    Format::log.clear();
    router.setMessageIdentificationService(serviceOf(new Identifier));
    registry->bind("A", new FormatFactory("A"));
    registry->bind("B", new FormatFactory("B"));
    registry->bind("Other", new GenericObjectFactory<TransformContext>);
  }
  ~Routing() noexcept(false) {
    for (const char* name : {"A", "B", "Other", "Late"}) registry->unbind(name);
  }

  /// A row of the conditions and context properties, each written as `propertiesOf` reads them.
  void addRow(const char* conditions, const char* contextProperties) {
    auto* const row = new MessageConfiguration;
    fill(*row, conditions);
    for (const auto& [name, value] : propertiesOf(contextProperties)) row->setContextProperty(name, value);
    router.addMessageConfiguration(row);
  }
  /// Class and text of what the router throws for `message`, and the property "p" that is left in the context.
  template <class E>
  std::string errorOn(const char* message) {
    StringInputSource source(message);
    const std::string text = errorOf<E>([&] { router.processMessage(source, context); });
    return text + ", p=" + context.getProperty("p").c_str();
  }

  /// The formats that took the messages, each with the number of its instance.
  std::string route(std::initializer_list<const char*> messages) {
    Format::log.clear();
    for (const char* message : messages) {
      StringInputSource source(message);
      router.processMessage(source);
    }
    return Format::log;
  }

  SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  MessageRouter router;
  TransformContext context;
};

TEST(MessageRouter, rowsCompareExactly) {
  static constexpr char order[] = "MessageFormat=FIX MessageVersion=4.4 MessageType=D Desk=NY";
  const auto fits = [](const char* conditions, const char* fields) {
    MessageConfiguration row;
    fill(row, conditions);
    const SmartPtr<DataObject> message(new Message(propertiesOf(fields)));
    return row.isMatch(message.get());
  };
  for (const char* conditions : {"", order, "Region="}) EXPECT_TRUE(fits(conditions, order)) << conditions;
  for (const char* conditions : {"MessageFormat=fix", "MessageFormat=FI", "MessageVersion=4.2", "MessageType=8",
                                 "MessageType=*", "Desk=LN", "Desk=NY Region=EU", "Desk="}) {
    EXPECT_FALSE(fits(conditions, order)) << conditions;
  }
  EXPECT_TRUE(fits("", "") && fits("Region=", "Region=") && !fits("MessageFormat=FIX", "MessageType=D"));
}

TEST(MessageRouter, firstRowThatFitsWins) {
  Routing at;
  at.addRow("MessageType=8", "input.format=B");
  at.addRow("MessageType=D", "input.format=A");
  at.addRow("MessageType=D Desk=NY", "input.format=B");
  Message::reads = 0;
  EXPECT_EQ(at.route({"MessageType=D Desk=NY"}), "A1 ");
  EXPECT_EQ(Message::reads, 1);  // once for all rows

  EXPECT_EQ(at.route({"MessageType=D", "MessageType=8", "MessageType=D"}), "A1 B1 A1 ");  // one instance a name
  at.router.clear();
  at.addRow("", "input.format=B");
  EXPECT_EQ(at.route({"MessageType=D"}), "B1 ");
}

TEST(MessageRouter, refusesWithTheContextUntouchedUntilTheRowIsCopied) {
  Routing at;
  at.context.setProperty("p", "before");
  EXPECT_EQ(at.errorOn<UnrecognizedMessageException>("?"), "Unrecognized message format, p=before");
  EXPECT_EQ(at.errorOn<UnhandledMessageException>("MessageType=a"), "Cannot handle message <Message/>, p=before");
  at.addRow("MessageType=none", "p=row");
  at.addRow("MessageType=empty", "p=row input.format=");
  at.addRow("MessageType=unbound", "p=row1 input.format=Late");
  at.addRow("MessageType=other", "p=row2 input.format=Other");
  for (const char* message : {"MessageType=none", "MessageType=empty"}) {
    EXPECT_EQ(at.errorOn<TransformException>(message),
              "input.format property cannot be empty in the message configuration, p=before");
  }
  EXPECT_EQ(at.errorOn<NamingException>("MessageType=unbound"), "Unable to lookup 'Late', p=row1");
  EXPECT_EQ(at.context.getProperty("input.format"), "Late");
  EXPECT_EQ(at.errorOn<NamingException>("MessageType=other"), "Unable to lookup 'Other', p=row2");
}

TEST(MessageRouter, recoversFromAFailedLookUp) {
  Routing at;
  at.addRow("MessageType=a", "input.format=A");
  at.addRow("MessageType=late", "input.format=Late");
  EXPECT_EQ(at.route({"MessageType=a"}), "A1 ");
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(at.errorOn<NamingException>("MessageType=late"), "Unable to lookup 'Late', p=");
    EXPECT_EQ(at.route({"MessageType=a"}), "A1 ");  // the name used last, whose format the failure had put aside
  }
  at.registry->bind("Late", new FormatFactory("Late"));
  EXPECT_EQ(at.route({"MessageType=late"}), "Late1 ");
}

TEST(MessageRouter, marksWhatPassesItFatal) {
  Routing at;
  at.addRow("MessageType=warn", "input.format=A raise=warn");
  at.addRow("", "input.format=A p=row raise=other");
  StringInputSource warning("MessageType=warn");
  StringInputSource other("");
  const auto isFatal = testing::Property(&NamingException::getSeverity, zkstring("fatal"));
  EXPECT_THAT([&] { at.router.processMessage(warning, at.context); }, testing::Throws<NamingException>(isFatal));
  EXPECT_THROW(at.router.processMessage(other, at.context), std::runtime_error);
  EXPECT_EQ(at.context.getProperty("p"), "row");
}

TEST(MessageRouter, ownsTheServiceItIsGiven) {
  Routing at;
  Identifier::deleted = 0;
  at.router.setMessageIdentificationService(serviceOf(new Identifier));
  EXPECT_EQ(Identifier::deleted, 1);
  at.router.clearMessageIdentificationService();
  EXPECT_EQ(Identifier::deleted, 2);
  EXPECT_EQ(at.errorOn<UnrecognizedMessageException>("MessageType=a"), "Unrecognized message format, p=");
  MessageIdentificationService* const shared = MessageIdentificationService::getDefault();
  {
    MessageRouter onDefault;
    onDefault.setMessageIdentificationService(serviceOf(new Identifier));
    EXPECT_EQ(MessageIdentificationService::getDefault(), shared);
    const MessageRouter given(serviceOf(new Identifier));
  }
  EXPECT_EQ(Identifier::deleted, 4);
  StringInputSource source("?");  // the default is still alive
  EXPECT_EQ(shared->identifyMessage(source), nullptr);
}

}  // namespace
}  // namespace zarvik
