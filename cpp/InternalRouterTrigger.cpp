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
  TransformContext& laidOver = getTransformContext(callContext);
  const SmartPtr<DataObject> mapped(normalizedObjectMappingFormat->map(message, laidOver));
  internalMessage->handleNormalizedObject(mapped.get(), laidOver);
}

void InternalRouterTrigger::onBatchStart(TransformContext& callContext) { getTransformContext(callContext); }

void InternalRouterTrigger::onBatchEnd(TransformContext& callContext) { getTransformContext(callContext); }

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
