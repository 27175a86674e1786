// Names to objects, properties of contexts and messages, lines, wildcards and FIX headers, beside the same work written
// out by hand on the standard library.
#include <fnmatch.h>

#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "DataObject.h"
#include "LineReader.h"
#include "LookupContextFactory.h"
#include "MessageHeaderAdapter.h"
#include "MessageIdentificationService.h"
#include "ObjectFactory.h"
#include "PropertyMapImpl.h"
#include "StringInputSource.h"
#include "TransformContext.h"
#include "WildcardFilter.h"
#include "support/Subject.h"

using namespace zarvik;

namespace {

constexpr char byHand[] = "by hand";

class Flow : public IMessageFlow {};

struct PlainFlow {
  virtual ~PlainFlow() = default;
};

void lookUps() {
  static const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  using Maker = std::unique_ptr<PlainFlow> (*)();
  static std::map<std::string, Maker, std::less<>> makers;
  for (int i = 0; i < 100; ++i) {
    const std::string name = "cartridge.flow." + std::to_string(i);
    registry->bind(name.c_str(), new GenericObjectFactory<Flow>);
    makers[name] = [] { return std::make_unique<PlainFlow>(); };
  }
  static const zkstringliteral wanted("cartridge.flow.77");
  measure("a flow by name, among 100", ours, [] { return registry->lookupMessageFlow(wanted); });
  measure("a flow by name, among 100", byHand,
          [] { return makers.find(std::string_view("cartridge.flow.77"))->second(); });
}

void contexts() {
  static constexpr const char* keys[] = {"input.format", "input.source", "output.device", "output.format", "batch"};
  static std::vector<zkstring> names(std::begin(keys), std::end(keys));
  static std::vector<std::string> standardNames(std::begin(keys), std::end(keys));
  measure("a context of 5 properties, made and read", ours, [] {
    TransformContext context;
    unsigned int length = 0;
    for (const zkstring& name : names) context.setProperty(name, name);
    for (const zkstring& name : names) length += context.getProperty(name).length();
    return length;
  });
  measure("a context of 5 properties, made and read", "std::map of std::string", [] {
    std::map<std::string, std::string> context;
    std::size_t length = 0;
    for (const std::string& name : standardNames) context.insert_or_assign(name, name);
    for (const std::string& name : standardNames) length += context.find(name)->second.size();
    return length;
  });
}

void properties() {
  static const SmartPtr<PropertyMapImpl> map(new PropertyMapImpl);
  static std::vector<std::pair<std::string, int>> plain;
  for (const char* name : {"correlationId", "replyTo", "jms.priority", "jms.type", "sequence"}) {
    map->setIntProperty(name, 7);
    plain.emplace_back(name, 7);
  }
  static const zkstringliteral last("sequence");
  measure("an int property, the last of 5", ours, [] { return map->getIntProperty(last, 0); });
  measure("an int property, the last of 5", byHand, [] {
    for (const auto& [name, value] : plain) {
      if (name == "sequence") return value;
    }
    return 0;
  });
}

/// A message and a context as one would make them who needs nothing but their contents.
struct PlainMessage {
  explicit PlainMessage(std::string_view text) : text(text) {}
  virtual ~PlainMessage() = default;
  virtual bool hasProperty(const std::string& name) const {
    return properties != nullptr && properties->count(name) > 0;
  }
  std::string_view text;
  std::unique_ptr<std::map<std::string, std::string>> properties;
};
struct PlainContext {
  virtual ~PlainContext() = default;
  virtual std::string_view getProperty(const std::string& name) const {
    return properties != nullptr ? properties->find(name)->second : std::string_view();
  }
  std::unique_ptr<std::map<std::string, std::string>> properties;
};

void messagesWithoutProperties() {
  const char* const subject = "a message and a context, asked for a property";
  static const zkstringliteral text("the text of a message");
  static const zkstringliteral name("correlationId");
  static const std::string standardName = "correlationId";
  measure(subject, ours, [] {
    const RawMessage message(new StringInputSource(text));
    TransformContext context;
    benchmark::DoNotOptimize(message.get());
    return message->hasProperty(name) || !context.getProperty(name).empty();
  });
  measure(subject, byHand, [] {
    const auto message = std::make_unique<PlainMessage>(text.data());
    const PlainContext context;
    benchmark::DoNotOptimize(message.get());
    return message->hasProperty(standardName) || !context.getProperty(standardName).empty();
  });
}

void lines() {
  static std::string text;
  for (int i = 0; i < 1000; ++i) text += "a line of forty bytes, or of nearly that\r\n";
  static const Binary bytes(text.data(), static_cast<unsigned int>(text.size()));
  measure("1000 lines", ours, [] {
    LineReader reader(bytes, false);
    unsigned int length = 0;
    while (reader.hasMoreLines()) length += reader.getNextLine().length();
    return length;
  });
  measure("1000 lines", byHand, [] {
    std::vector<std::string_view> found;
    const char* start = text.data();
    const char* const end = start + text.size();
    while (const void* const at = std::memchr(start, '\n', static_cast<std::size_t>(end - start))) {
      const char* const stop = static_cast<const char*>(at);
      found.emplace_back(start, static_cast<std::size_t>(stop - start - 1));
      start = stop + 1;
    }
    std::size_t length = 0;
    for (const std::string_view line : found) length += line.size();
    return length;
  });
}

void wildcards() {
  static WildcardFilter filter(zkstringliteral("order.*.leg*.price"));
  static const zkstringliteral name("order.17.legs.leg-2.price");
  measure("a wildcard", ours, [] { return filter.accept(name); });
  measure("a wildcard", "fnmatch", [] { return fnmatch("order.*.leg*.price", name.data(), 0); });
}

void identification() {
  static const zkstringliteral message(
      "8=FIX.4.4\x01"
      "9=276\x01"
      "35=D\x01"
      "34=42\x01"
      "49=SENDER\x01"
      "52=20240102-03:04:05.678\x01"
      "56=TARGET\x01"
      "11=ORDER\x01"
      "55=XYZ\x01"
      "54=1\x01"
      "38=100\x01");
  static StringInputSource source(message);
  measure("type of a FIX message", ours, [] {
    const SmartPtr<DataObject> header(MessageIdentificationService::getDefault()->identifyMessage(source));
    return MessageHeaderAdapter(header.get(), false).getMessageType();
  });
  measure("type of a FIX message", byHand, [] {
    const std::string_view text(message.data(), message.length());
    const std::size_t start = text.find(
                                  "\x01"
                                  "35=") +
                              4;
    return std::string(text.substr(start, text.find('\x01', start) - start));
  });
}

const bool registered =
    (lookUps(), contexts(), properties(), messagesWithoutProperties(), lines(), wildcards(), identification(), true);
}  // namespace
