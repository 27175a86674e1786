#include "RouterTrigger.h"

#include <utility>

#include "Exceptions.h"
#include "StartUp.h"
#include "ThrowFrom.h"
#include "TriggerContext.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/RouterTrigger";
constinit const zkstringliteral className("RouterTrigger");
}  // namespace

AbstractTrigger::AbstractTrigger() = default;

AbstractTrigger::~AbstractTrigger() = default;

void AbstractTrigger::setContext(TriggerContext* triggerContext) {
  context = triggerContext;
  transformContext.putAll(context->getProperties());
  transformContext.setProperty(TransformContext::OUTPUT_DESTINATION_PROPERTY, context->getIdentity());
}

Object* AbstractTrigger::execute(Properties& /*properties*/) {
  throwFrom(here, TransformException("Nothing to execute"));
}

TransformContext& AbstractTrigger::getTransformContext(TransformContext& callContext) {
  transformContext.setTransformContext(&callContext);
  return transformContext;
}

AbstractTrigger::Call::Call(AbstractTrigger& trigger, TransformContext& callContext)
    : trigger(trigger),
      around(std::exchange(trigger.inCall, true) ? trigger.transformContext.getTransformContext() : nullptr) {
  trigger.getTransformContext(callContext);
}

AbstractTrigger::Call::~Call() {
  if (around != nullptr) {
    trigger.getTransformContext(*around);
  } else {
    trigger.inCall = false;
  }
}

SmartPtr<IOutputFormat> AbstractTrigger::getOutputFormat(zkstring name) {
  if (name.empty()) throwFrom(here, TransformException("RouterTrigger: Output format is not configured (null)"));
  const auto known = outputFormats.find(name);
  if (known != outputFormats.end()) return known->second;
  SmartPtr<IOutputFormat> format = context->lookupOutputFormat(name);
  outputFormats.emplace(std::move(name), format);
  return format;
}

void RouterTrigger::onNewMessage(DataObject* message, TransformContext& callContext) {
  const Call call(*this, callContext);
  outputFormat()->write(message, transformContext);
}

void RouterTrigger::onBatchStart(TransformContext& callContext) {
  const Call call(*this, callContext);
  outputFormat();
}

void RouterTrigger::onBatchEnd(TransformContext& callContext) { RouterTrigger::onBatchStart(callContext); }

SmartPtr<IOutputFormat> RouterTrigger::outputFormat() {
  return getOutputFormat(transformContext.getProperty(TransformContext::OUTPUT_FORMAT_PROPERTY));
}

}  // namespace zarvik

void registerClassRouterTrigger() { zarvik::registerLibraryClass<zarvik::RouterTrigger>(zarvik::className); }
