#include "orders/Cartridge.h"

#include "ContextOutputProtocol.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "ObjectFactory.h"
#include "RouterTrigger.h"
#include "TransformContext.h"
#include "UserClassManager.h"
#include "orders/Names.h"
#include "orders/fix/FIXFormats.h"
#include "orders/internal/IsinCheck.h"
#include "orders/internal/OrderMessage.h"
#include "orders/output/BytesOutput.h"
#include "orders/output/FileProtocol.h"

using namespace zarvik;

namespace orders {
namespace {

/// Binds the message of a kind in a version, its input format and its output format.
template <class Kind, Version version>
void bindMessage(ILookupContext& registry, const zkstring& name) {
  registry.bind(name, new GenericObjectFactory<FIXMessage<Kind, version>>);
  registry.bind(name + "In", new GenericObjectFactory<FIXInput<Kind, version>>);
  registry.bind(name + "Out", new GenericObjectFactory<FIXOutput<Kind, version>>);
}

/// Which messages go to which input format, and what they go out as.
struct Row {
  const char *version, *type, *inputFormat, *outputFormat;
};
constexpr Row rows[] = {
    {"4.2", "D", "NewOrderSingle42In", "NewOrderSingle44Out"},
    {"4.4", "D", "NewOrderSingle44In", "NewOrderSingle42Out"},
    {"4.2", "8", "ExecutionReport42In", "ExecutionReport44Out"},
    {"4.4", "8", "ExecutionReport44In", "ExecutionReport42Out"},
};

MessageConfiguration* configurationOf(const Row& row) {
  auto* const configuration = new MessageConfiguration;
  configuration->setMessageFormat("FIX");
  configuration->setMessageVersion(row.version);
  configuration->setMessageType(row.type);
  configuration->setContextProperty(TransformContext::INPUT_FORMAT_PROPERTY, row.inputFormat);
  configuration->setContextProperty(TransformContext::OUTPUT_FORMAT_PROPERTY, row.outputFormat);
  configuration->setContextProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, MEMORY);
  return configuration;
}
}  // namespace

void install(const std::string& folder) {
  const SmartPtr<ILookupContext> holder = LookupContextFactory::getLookupContext();
  ILookupContext& registry = *holder;
  bindMessage<NewOrderSingleKind, Version::FIX42>(registry, "NewOrderSingle42");
  bindMessage<NewOrderSingleKind, Version::FIX44>(registry, "NewOrderSingle44");
  bindMessage<ExecutionReportKind, Version::FIX42>(registry, "ExecutionReport42");
  bindMessage<ExecutionReportKind, Version::FIX44>(registry, "ExecutionReport44");
  registry.bind(ORDER_MESSAGE, new GenericObjectFactory<OrderMessage>);
  registry.bind(BYTES_OUT, new GenericObjectFactory<BytesOutput>);
  registry.bind(FILES, new FileProtocol(folder));
  registry.bind(MEMORY, new ContextOutputProtocol);
  registerClassRouterTrigger();
  UserClassManager::registerClass(ISIN_CHECK, new GenericObjectFactory<IsinCheck>);
}

void addRows(MessageRouter& router) {
  if (!router.onInit()) return;
  for (const Row& row : rows) router.addMessageConfiguration(configurationOf(row));
}

}  // namespace orders
