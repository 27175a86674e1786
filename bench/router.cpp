// The router's own work: which row takes a message, the row's properties into the context, and the call of the format
// used last; no look-up, no parsing. Beside it, the same work written out by hand on the standard library.
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Allocations.h"
#include "DataObjectMetaInfo.h"
#include "GenericDataObject.h"
#include "InputSource.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "ObjectFactory.h"
#include "TransformContext.h"
#include "support/Subject.h"

using namespace zarvik;

namespace {

constexpr char format[] = "FIX";
constexpr char version[] = "FIX.4.4";
constexpr const char* types[] = {"D", "F", "G", "8", "W"};
constexpr const char* names[] = {"input.format", "output.device", "output.format"};
constexpr const char* values[] = {"orders", "desk.queue", "order.record"};

class Source : public InputSource {
 public:
  const char* getAsBytes(int& length) override {
    length = 0;
    return "";
  }
};

/// A field that is counted, so that reading it allocates nothing.
class Field : public ObjectRef {
 public:
  explicit Field(const char* text) : text(text) {}
  zkstring toString() const override { return text; }

 private:
  zkstring text;
};

const char* const fieldNames[] = {"MessageFormat", "MessageVersion", "MessageType"};
const char* const fieldTypes[] = {"String", "String", "String"};

/// A message whose header fields are there already: what is left is the router's own work. (Other records box each
/// field that they are asked for.)
class Message : public GenericDataObject {
 public:
  Message() : GenericDataObject(metaInfo(), false) {}
  Object* getField(int index) const override { return fields[index].get(); }

 private:
  static DataObjectMetaInfo* metaInfo() {
    static DataObjectMetaInfo info(zkstringliteral("Header"), fieldNames, fieldTypes, 3);
    return &info;
  }
  SmartPtr<Object> fields[3] = {new Field(format), new Field(version), new Field(types[0])};
};

class Identifier : public MessageIdentifier {
 public:
  DataObject* identifyMessage(InputSource& /*source*/) override { return message.get(); }

 private:
  SmartPtr<DataObject> message{new Message};
};

class SilentFormat : public IInputFormat {
 public:
  void processInput(InputSource& source, TransformContext& /*context*/) override { benchmark::DoNotOptimize(&source); }
  DataObject* handleInput(InputSource& /*source*/, TransformContext& /*context*/) override { return nullptr; }
};

MessageRouter& router() {
  static MessageRouter& made = *[] {
    LookupContextFactory::getLookupContext()->rebind(values[0], new GenericObjectFactory<SilentFormat>);
    auto* const service = new MessageIdentificationService;
    service->registerMessageIdentifer(new Identifier);
    auto* const router = new MessageRouter(service);
    for (const char* type : types) {
      auto* const row = new MessageConfiguration;
      row->setMessageFormat(format);
      row->setMessageVersion(version);
      row->setMessageType(type);
      for (int i = 0; i < 3; ++i) row->setContextProperty(names[i], values[i]);
      router->addMessageConfiguration(row);
    }
    return router;
  }();
  return made;
}

/// The least that a table of rows can cost: views compared in place, properties in a map, one virtual call.
class ByHand {
 public:
  using Properties = std::map<std::string, std::string, std::less<>>;
  struct Row {
    std::string format, version, type;
    Properties properties;
  };

  ByHand() {
    for (const char* type : types) {
      Row row{format, version, type, {}};
      for (int i = 0; i < 3; ++i) row.properties[names[i]] = values[i];
      rows.push_back(row);
    }
  }

  void process(Properties& context) {
    const std::string_view messageFormat = opaque(format), messageVersion = opaque(version), type = opaque(types[0]);
    for (const Row& row : rows) {
      if (row.format != messageFormat || row.version != messageVersion || row.type != type) continue;
      for (const auto& [name, value] : row.properties) context.insert_or_assign(name, value);
      benchmark::DoNotOptimize(context);
      return;
    }
  }

 private:
  static std::string_view opaque(const char* text) {
    benchmark::DoNotOptimize(text);
    return text;
  }

  std::vector<Row> rows;
};

/// A subject's name with the allocations of one message, counted after a first one.
template <class Action>
std::string withAllocations(const char* subject, Action action) {
  action();
  const Allocations allocations;
  action();
  return std::string(subject) + ", " + std::to_string(allocations.count()) + " allocations";
}

void routes() {
  static Source source;
  static TransformContext context;
  static ByHand byHand;
  static ByHand::Properties properties;
  const auto again = [] { return router().processMessage(source, context), 0; };
  const auto fresh = [] { return router().processMessage(source), 0; };
  const std::string sameContext = withAllocations("message, context reused", again);
  const std::string newContext = withAllocations("message, new context", fresh);
  measure(sameContext, ours, again);
  measure(sameContext, "by hand", [] { return byHand.process(properties), 0; });
  measure(newContext, ours, fresh);
  measure(newContext, "by hand", [] {
    ByHand::Properties made;
    return byHand.process(made), 0;
  });
}

const bool registered = (routes(), true);
}  // namespace
