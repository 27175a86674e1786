#include "InternalRouterTrigger.h"

#include "DataObject.h"
#include "StartUp.h"
#include "TriggerContext.h"

namespace zarvik {
namespace {

constinit const zkstringliteral className("InternalRouterTrigger");
constinit const zkstringliteral mappingProperty("internalmapping.format");
}  // namespace

void InternalRouterTrigger::setContext(TriggerContext* triggerContext) {
  AbstractTrigger::setContext(triggerContext);
  normalizedObjectMappingFormatName = triggerContext->getProperty(mappingProperty);
  initNormalizedObjectMappingFormat();
}

void InternalRouterTrigger::onNewMessage(DataObject* message, TransformContext& callContext) {
  const Call call(*this, callContext);
  const SmartPtr<DataObject> mapped(normalizedObjectMappingFormat->map(message, transformContext));
  internalMessage->handleNormalizedObject(mapped.get(), transformContext);
}

void InternalRouterTrigger::onBatchStart(TransformContext& callContext) { const Call call(*this, callContext); }

void InternalRouterTrigger::onBatchEnd(TransformContext& callContext) { const Call call(*this, callContext); }

void InternalRouterTrigger::initNormalizedObjectMappingFormat() {
  if (!normalizedObjectMappingFormat.isNull()) return;
  SmartPtr<INormalizedObjectMappingFormat> format =
      context->lookupNormalizedObjectMappingFormat(normalizedObjectMappingFormatName);
  internalMessage = context->lookupInternalMessage(format->getDestinationMessageName());
  normalizedObjectMappingFormat = std::move(format);  // last, so that a target that is missing is looked for again
}

}  // namespace zarvik

void registerClassInternalRouterTrigger() {
  zarvik::registerLibraryClass<zarvik::InternalRouterTrigger>(zarvik::className);
}
