#include "Collector.h"

#include "Exceptions.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "Rows.h"
#include "TransformContext.h"
#include "orders/Names.h"

using namespace zarvik;

namespace route {
namespace {

/// Runs `step`, which gives a Result, and keeps its errors or the one that it throws, as errors of `phase`. Gives the
/// step's value, null if it threw.
template <class Step>
auto collect(Errors& errors, const zkstring& phase, Step step) -> decltype(step().value) {
  const auto keep = [&](ExceptionDataObject* error) {
    errors.push_back(SmartPtr<ExceptionDataObject>(error));
    error->fillPhase(phase);
  };
  try {
    const auto result = step();
    for (ExceptionDataObject* const error : result.exceptions) keep(error);
    return result.value;
  } catch (const TransformException& error) {
    keep(new TransformException(error));
    return nullptr;
  }
}
}  // namespace

Errors Collector::errorsOf(InputSource& source, TransformContext& context) {
  Properties& row = router.getMessageConfiguration(source)->getContextProperties();
  const zkstring messageName = row[MESSAGE_PROPERTY];
  Errors errors;
  if (LookupContextFactory::getLookupContext()->lookup(messageName) == nullptr) return errors;
  const Services& with = servicesOf(messageName);

  const zkstring& input = ExceptionObject::getINPUT_PHASE();
  const SmartPtr<DataObject> parsed = collect(errors, input, [&] { return with.message->parse2(source, context); });
  if (parsed.isNull()) return errors;
  collect(errors, input, [&] { return with.message->validate2(parsed, context); });

  const SmartPtr<DataObject> order = collect(errors, input, [&] {
    return Result<SmartPtr<DataObject>>{with.inputFormat->handleInput(source, context), {}};
  });
  if (order.isNull()) return errors;
  const zkstring& internal = ExceptionObject::getINTERNAL_MESSAGE_PHASE();
  collect(errors, internal, [&] { return with.normalised->preprocess2(order, context); });
  collect(errors, internal, [&] { return with.normalised->validate2(order, context); });
  return errors;
}

Collector::Services& Collector::servicesOf(const zkstring& messageName) {
  const auto found = services.find(messageName);
  if (found != services.end()) return found->second;
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  return services[messageName] = {registry->lookupExternalMessage(messageName),
                                  registry->lookupInputFormat(messageName + "In"),
                                  registry->lookupInternalMessage(orders::ORDER_MESSAGE)};
}

}  // namespace route
