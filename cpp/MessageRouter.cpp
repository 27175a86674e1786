#include "MessageRouter.h"

#include <optional>
#include <utility>

#include "DataObject.h"
#include "Exceptions.h"
#include "LookupContextFactory.h"
#include "MessageHeaderAdapter.h"
#include "PropertyLookup.h"
#include "Stamped.h"
#include "ThrowFrom.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/MessageRouter";
constinit const zkstringliteral fatal("fatal");

/// A header whose three main fields are read once for all rows, since reading a field may make an object.
class ReadOnceHeader : public MessageHeaderAdapter {
 public:
  ReadOnceHeader(DataObject* message) : MessageHeaderAdapter(message, false) {}

  zkstring getMessageFormat() override {
    return format ? *format : format.emplace(MessageHeaderAdapter::getMessageFormat());
  }
  zkstring getMessageVersion() override {
    return version ? *version : version.emplace(MessageHeaderAdapter::getMessageVersion());
  }
  zkstring getMessageType() override { return type ? *type : type.emplace(MessageHeaderAdapter::getMessageType()); }

 private:
  std::optional<zkstring> format;
  std::optional<zkstring> version;
  std::optional<zkstring> type;
};
}  // namespace

MessageRouter::MessageRouter(MessageIdentificationService* service)
    : identificationService(service != nullptr ? service : MessageIdentificationService::getDefault()),
      lookupContext(LookupContextFactory::getLookupContext()),
      ownsIdentificationService(service != nullptr) {}

MessageRouter::~MessageRouter() { clearMessageIdentificationService(); }

void MessageRouter::addMessageConfiguration(MessageConfiguration* configuration) {
  configurations.push_back(std::unique_ptr<MessageConfiguration>(configuration));
}

void MessageRouter::clear() { configurations.clear(); }

void MessageRouter::setMessageIdentificationService(MessageIdentificationService* service) {
  if (service != identificationService) clearMessageIdentificationService();
  identificationService = service;
  ownsIdentificationService = true;
}

void MessageRouter::clearMessageIdentificationService() {
  if (ownsIdentificationService) delete identificationService;
  identificationService = nullptr;
}

bool MessageRouter::onInit() { return !std::exchange(initialized, true); }

MessageConfiguration* MessageRouter::getMessageConfiguration(InputSource& source) const {
  const SmartPtr<DataObject> message(identificationService != nullptr ? identificationService->identifyMessage(source)
                                                                      : nullptr);
  if (message.isNull()) throwFrom(here, UnrecognizedMessageException("Unrecognized message format"));

  ReadOnceHeader header(message.get());
  for (const auto& configuration : configurations) {
    if (configuration->isMatch(header)) return configuration.get();
  }
  throwFrom(here, UnhandledMessageException("Cannot handle message " + message->toXMLString()));
}

void MessageRouter::processMessage(InputSource& source, TransformContext& context) const {
  const Properties& contextProperties = getMessageConfiguration(source)->getContextProperties();
  const zkstring* const inputFormatName = findProperty(contextProperties, TransformContext::INPUT_FORMAT_PROPERTY);
  if (inputFormatName == nullptr || inputFormatName->empty()) {
    throwFrom(here, TransformException(TransformContext::INPUT_FORMAT_PROPERTY +
                                       " property cannot be empty in the message configuration"));
  }

  stamped([](TransformException& error) { error.setSeverity(fatal); },
          [&] {
            for (const auto& [name, value] : contextProperties) context.setProperty(name, value);
            resolveInputFormat(*inputFormatName).processInput(source, context);
          });
}

void MessageRouter::processMessage(InputSource& source) const {
  TransformContext context;
  processMessage(source, context);
}

/// The instance kept for `name`, made by the registry for the first message of that name.
IInputFormat& MessageRouter::resolveInputFormat(const zkstring& name) const {
  if (currentInputFormat.isNull() || name != currentInputFormatName) {
    currentInputFormat = nullptr;  // and so it stays when the look-up fails
    auto kept = inputFormatCache.find(name);
    if (kept == inputFormatCache.end()) {
      kept = inputFormatCache.emplace(name, lookupContext->lookupInputFormat(name)).first;
    }
    currentInputFormatName = name;
    currentInputFormat = kept->second;
  }
  return *currentInputFormat;
}

}  // namespace zarvik
