#include "AbstractExternalMessage.h"

#include <cassert>

#include "ByteArrayInputSource.h"
#include "Class.h"
#include "Collecting.h"
#include "DataObjectIO.h"
#include "FieldsValidationRules.h"
#include "InputParser.h"
#include "LookupContextFactory.h"
#include "SimpleOutputWriter.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/AbstractExternalMessage";
constinit const zkstringliteral mainValidator("Default");

ExternalObject& externalObject(const SmartPtr<DataObject>& handle) {
  DataObject* const object = handle.get();
  if (object == nullptr) {
    throwFrom(here, TransformRuntimeException("Unexpected null object. Expected external object"));
  }
  if (auto* const external = dynamic_cast<ExternalObject*>(object)) return *external;
  throwFrom(here, TransformRuntimeException("Unexpected object of type " + Class(typeid(*object)).getName() +
                                            ". Expected external object"));
}
}  // namespace

AbstractExternalMessage::AbstractExternalMessage(const zkstring& name)
    : lookupContext(LookupContextFactory::getLookupContext()), name(name) {}

SmartPtr<DataObject> AbstractExternalMessage::createObject() { return createExternalObject().get(); }

SmartPtr<DataObject> AbstractExternalMessage::parse(const Binary& bytes, TransformContext& context) {
  return parse(bytes, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

SmartPtr<DataObject> AbstractExternalMessage::parse(const RawMessage& message, TransformContext& context) {
  assert(!message.isNull());
  return parseOwnForm(static_cast<InputSource&>(*message), ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

SmartPtr<DataObject> AbstractExternalMessage::parse(InputSource& source, TransformContext& context) {
  return parse(source.getAsBinary(), ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

Result<SmartPtr<DataObject>> AbstractExternalMessage::parse2(const Binary& bytes, TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) { return parse(bytes, handler, context); });
}

Result<SmartPtr<DataObject>> AbstractExternalMessage::parse2(InputSource& source, TransformContext& context) {
  return parse2(source.getAsBinary(), context);
}

SmartPtr<DataObject> AbstractExternalMessage::parse(const Binary& bytes, ExceptionHandler* handler,
                                                    TransformContext& context) {
  const zkstring form = context.getProperty(MESSAGE_FORMAT);
  if (form == XML_FORM) throwFrom(here, TransformException("XML parsing is not supported"));
  if (!isZarvikFormat(form)) return parseOwnForm(bytes, handler, context);
  const SmartPtr<ExternalObject> object = createExternalObject();
  DataObjectIO::parse(object.get(), bytes);
  return object.get();
}

template <class Bytes>
SmartPtr<DataObject> AbstractExternalMessage::parseOwnForm(Bytes& bytes, ExceptionHandler* handler,
                                                           TransformContext& context) {
  InputParser* const parser = getInputParser();
  parser->setExceptionHandler(handler);
  const SmartPtr<ExternalObject> object = createExternalObject();
  parser->parse(object.get(), bytes, context);
  return object.get();
}

void AbstractExternalMessage::validate(const zkstring& validatorName, const SmartPtr<DataObject>& object,
                                       TransformContext& context) {
  validate(validatorName, object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

void AbstractExternalMessage::validate(const SmartPtr<DataObject>& object, TransformContext& context) {
  validate(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

Result<SmartPtr<DataObject>> AbstractExternalMessage::validate2(const zkstring& validatorName,
                                                                const SmartPtr<DataObject>& object,
                                                                TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) -> SmartPtr<DataObject> {
    validate(validatorName, object, handler, context);
    return nullptr;
  });
}

Result<SmartPtr<DataObject>> AbstractExternalMessage::validate2(const SmartPtr<DataObject>& object,
                                                                TransformContext& context) {
  return validate2(mainValidator, object, context);
}

void AbstractExternalMessage::validate(const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                                       TransformContext& context) {
  validate(mainValidator, object, handler, context);
}

void AbstractExternalMessage::validate(const zkstring& validatorName, const SmartPtr<DataObject>& object,
                                       ExceptionHandler* handler, TransformContext& context) {
  FieldsValidationRules* const rules = getValidatorByName(validatorName);
  const ExternalObject& external = externalObject(object);
  rules->setExceptionHandler(handler);
  rules->validateHeader(external.getHeader(), context);
  rules->validateData(external.getHeader(), external.getData(), context);
  rules->validateTrailer(external.getTrailer(), context);
}

Binary AbstractExternalMessage::serialize(const SmartPtr<DataObject>& object, TransformContext& context) {
  return serialize(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

Result<Binary> AbstractExternalMessage::serialize2(const SmartPtr<DataObject>& object, TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) { return serialize(object, handler, context); });
}

RawMessage AbstractExternalMessage::serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) {
  return serializeMessage(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, context);
}

Result<RawMessage> AbstractExternalMessage::serializeMessage2(const SmartPtr<DataObject>& object,
                                                              TransformContext& context) {
  return collecting([&](ExceptionHandler* handler) { return serializeMessage(object, handler, context); });
}

Binary AbstractExternalMessage::serialize(const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                                          TransformContext& context) {
  ExternalObject& external = externalObject(object);
  if (const auto form = genericForm(external, context)) return *form;
  return getOutputWriter()->write(external, handler, context);
}

RawMessage AbstractExternalMessage::serializeMessage(const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                                                     TransformContext& context) {
  ExternalObject& external = externalObject(object);
  if (const auto form = genericForm(external, context)) return new ByteArrayInputSource(*form);
  return getOutputWriter()->writeMessage(external, handler, context);
}

std::optional<Binary> AbstractExternalMessage::genericForm(ExternalObject& object, TransformContext& context) {
  const zkstring form = context.getProperty(MESSAGE_FORMAT);
  if (form == XML_FORM) return object.toXMLString();
  if (isZarvikFormat(form)) return DataObjectIO::serialize(&object);
  return std::nullopt;
}

void AbstractExternalMessage::addValidator(const zkstring& validatorName, FieldsValidationRules* rules) {
  validators.add(validatorName, rules);
}

FieldsValidationRules* AbstractExternalMessage::getValidatorByName(const zkstring& validatorName) const {
  return validators.get(validatorName, "Validator", here);
}

}  // namespace zarvik
