#include "AbstractInternalMessage.h"

#include <cassert>

#include "BusinessProcessingRules.h"
#include "ByteArrayInputSource.h"
#include "Collecting.h"
#include "DataObjectIO.h"
#include "OutputDevice.h"
#include "Stamped.h"
#include "TransformContext.h"
#include "Triggers.h"
#include "ValidationRules.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/AbstractInternalMessage";
constinit const zkstringliteral mainValidator("Default");

[[noreturn]] void throwNeverParsed() {
  throwFrom(here, TransformException("unsupported operation parse for internal messages"));
}

/// Keeps an object that nobody may own yet alive while it passes through handles.
class Alive {
 public:
  explicit Alive(DataObject& object) : object(object) { object.addRef(); }
  Alive(const Alive&) = delete;
  Alive& operator=(const Alive&) = delete;
  ~Alive() { object.decRef(); }

 private:
  DataObject& object;
};
}  // namespace

constinit const zkstringliteral AbstractInternalMessage::PREPROCESSING_NODE_NAME("Preprocess");
constinit const zkstringliteral AbstractInternalMessage::POSTPROCESSING_NODE_NAME("Postprocess");

AbstractInternalMessage::AbstractInternalMessage(const zkstring& name) : name(name) {}

SmartPtr<DataObject> AbstractInternalMessage::createObject() { return createNormalizedObject(); }

SmartPtr<DataObject> AbstractInternalMessage::parse(const Binary& /*bytes*/, TransformContext& /*context*/) {
  throwNeverParsed();
}

SmartPtr<DataObject> AbstractInternalMessage::parse(const RawMessage& /*message*/, TransformContext& /*context*/) {
  throwNeverParsed();
}

SmartPtr<DataObject> AbstractInternalMessage::parse(InputSource& /*source*/, TransformContext& /*context*/) {
  throwNeverParsed();
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::parse2(const Binary& /*bytes*/, TransformContext& /*context*/) {
  throwNeverParsed();
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::parse2(InputSource& /*source*/, TransformContext& /*context*/) {
  throwNeverParsed();
}

void AbstractInternalMessage::validate(const zkstring& validatorName, const SmartPtr<DataObject>& object,
                                       TransformContext& context) {
  validate(validatorName, object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

void AbstractInternalMessage::validate(const SmartPtr<DataObject>& object, TransformContext& context) {
  validate(mainValidator, object, context);
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::validate2(const zkstring& validatorName,
                                                                const SmartPtr<DataObject>& object,
                                                                TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) -> SmartPtr<DataObject> {
    validate(validatorName, object, handler, context);
    return nullptr;
  });
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::validate2(const SmartPtr<DataObject>& object,
                                                                TransformContext& context) {
  return validate2(mainValidator, object, context);
}

void AbstractInternalMessage::validate(const zkstring& validatorName, const SmartPtr<DataObject>& object,
                                       ExceptionHandler* handler, TransformContext& context) {
  ValidationRules* const rules = getValidatorByName(validatorName);
  rules->setExceptionHandler(handler);
  rules->validate(object.get(), context);
}

Binary AbstractInternalMessage::serialize(const SmartPtr<DataObject>& object, TransformContext& context) {
  assert(!object.isNull());
  if (isZarvikFormat(context.getProperty(MESSAGE_FORMAT))) return DataObjectIO::serialize(object.get());
  return object->toXMLString();
}

Result<Binary> AbstractInternalMessage::serialize2(const SmartPtr<DataObject>& object, TransformContext& context) {
  return {serialize(object, context), {}};
}

RawMessage AbstractInternalMessage::serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) {
  return new ByteArrayInputSource(serialize(object, context));
}

Result<RawMessage> AbstractInternalMessage::serializeMessage2(const SmartPtr<DataObject>& object,
                                                              TransformContext& context) {
  return {serializeMessage(object, context), {}};
}

void AbstractInternalMessage::serialize(const SmartPtr<DataObject>& object, OutputDevice& device,
                                        TransformContext& context) {
  const Binary bytes = serialize(object, context);
  device.write(bytes.data(), static_cast<int>(bytes.length()));
}

void AbstractInternalMessage::handleNormalizedObject(DataObject* object, TransformContext& context) {
  withPhase(ExceptionObject::getINTERNAL_MESSAGE_PHASE(), [&] {
    processAll(object, context);
    Triggers* const triggers = getTriggers();
    assert(triggers != nullptr);
    triggers->onNewMessage(object, context);
  });
}

void AbstractInternalMessage::processAll(DataObject* object, TransformContext& context) {
  assert(object != nullptr);
  const Alive alive(*object);
  const SmartPtr<DataObject> held(object);
  if (processingRuleExists(PREPROCESSING_NODE_NAME)) preprocess(held, context);
  validate(held, context);
  if (processingRuleExists(POSTPROCESSING_NODE_NAME)) postprocess(held, context);
}

SmartPtr<DataObject> AbstractInternalMessage::preprocess(const SmartPtr<DataObject>& object,
                                                         TransformContext& context) {
  preprocess(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
  return object;
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::preprocess2(const SmartPtr<DataObject>& object,
                                                                  TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) {
    preprocess(object, handler, context);
    return object;
  });
}

void AbstractInternalMessage::preprocess(const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                                         TransformContext& context) {
  if (processingRuleExists(PREPROCESSING_NODE_NAME)) process(PREPROCESSING_NODE_NAME, object, handler, context);
}

SmartPtr<DataObject> AbstractInternalMessage::process(const zkstring& processingName,
                                                      const SmartPtr<DataObject>& object, TransformContext& context) {
  process(processingName, object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
  return object;
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::process2(const zkstring& processingName,
                                                               const SmartPtr<DataObject>& object,
                                                               TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) {
    process(processingName, object, handler, context);
    return object;
  });
}

void AbstractInternalMessage::process(const zkstring& processingName, const SmartPtr<DataObject>& object,
                                      ExceptionHandler* handler, TransformContext& context) {
  BusinessProcessingRules* const rules = getProcessingRuleByName(processingName);
  rules->setExceptionHandler(handler);
  rules->process(object.get(), context);
}

SmartPtr<DataObject> AbstractInternalMessage::postprocess(const SmartPtr<DataObject>& object,
                                                          TransformContext& context) {
  postprocess(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
  return object;
}

Result<SmartPtr<DataObject>> AbstractInternalMessage::postprocess2(const SmartPtr<DataObject>& object,
                                                                   TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) {
    postprocess(object, handler, context);
    return object;
  });
}

void AbstractInternalMessage::postprocess(const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                                          TransformContext& context) {
  if (processingRuleExists(POSTPROCESSING_NODE_NAME)) process(POSTPROCESSING_NODE_NAME, object, handler, context);
}

Triggers* AbstractInternalMessage::getTriggers() { return nullptr; }

void AbstractInternalMessage::addValidator(const zkstring& validatorName, ValidationRules* rules) {
  validators.add(validatorName, rules);
}

void AbstractInternalMessage::addProcessing(const zkstring& processingName, BusinessProcessingRules* rules) {
  processings.add(processingName, rules);
}

BusinessProcessingRules* AbstractInternalMessage::getProcessingRuleByName(const zkstring& processingName) const {
  return processings.get(processingName, "Processing", here);
}

ValidationRules* AbstractInternalMessage::getValidatorByName(const zkstring& validatorName) const {
  return validators.get(validatorName, "Validator", here);
}

bool AbstractInternalMessage::processingRuleExists(const zkstring& processingName) const {
  return processings.find(processingName) != nullptr;
}

}  // namespace zarvik
