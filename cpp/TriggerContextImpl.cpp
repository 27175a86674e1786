#include "TriggerContextImpl.h"

#include "LookupContextFactory.h"

namespace zarvik {

SmartPtr<ILookupContext> TriggerContextImpl::getLookupContext() {
  if (lookupContext.isNull()) lookupContext = LookupContextFactory::getLookupContext();
  return lookupContext;
}

Object* TriggerContextImpl::lookupComponent(const zkstring& name) { return getLookupContext()->lookupComponent(name); }

SmartPtr<INormalizedObjectMappingFormat> TriggerContextImpl::lookupNormalizedObjectMappingFormat(const zkstring& name) {
  return getLookupContext()->lookupNormalizedObjectMappingFormat(name);
}

SmartPtr<IMessage> TriggerContextImpl::lookupMessage(const zkstring& name) {
  return getLookupContext()->lookupMessage(name);
}

SmartPtr<IExternalMessage> TriggerContextImpl::lookupExternalMessage(const zkstring& name) {
  return getLookupContext()->lookupExternalMessage(name);
}

SmartPtr<IInternalMessage> TriggerContextImpl::lookupBusinessTransaction(const zkstring& name) {
  return getLookupContext()->lookupBusinessTransaction(name);
}

SmartPtr<IMessageMapping> TriggerContextImpl::lookupMessageMapping(const zkstring& name) {
  return getLookupContext()->lookupMessageMapping(name);
}

SmartPtr<IMessageFlow> TriggerContextImpl::lookupMessageFlow(const zkstring& name) {
  return getLookupContext()->lookupMessageFlow(name);
}

SmartPtr<IInternalMessage> TriggerContextImpl::lookupInternalMessage(const zkstring& name) {
  return getLookupContext()->lookupInternalMessage(name);
}

SmartPtr<IInputFormat> TriggerContextImpl::lookupInputFormat(const zkstring& name) {
  return getLookupContext()->lookupInputFormat(name);
}

SmartPtr<IOutputFormat> TriggerContextImpl::lookupOutputFormat(const zkstring& name) {
  return getLookupContext()->lookupOutputFormat(name);
}

IOutputProtocol* TriggerContextImpl::lookupOutputProtocol(const zkstring& name) {
  return getLookupContext()->lookupOutputProtocol(name);
}

StringList TriggerContextImpl::getMessages() { return getLookupContext()->getMessages(); }

StringList TriggerContextImpl::getExternalMessages() { return getLookupContext()->getExternalMessages(); }

StringList TriggerContextImpl::getInternalMessages() { return getLookupContext()->getInternalMessages(); }

StringList TriggerContextImpl::getMessageMappings() { return getLookupContext()->getMessageMappings(); }

StringList TriggerContextImpl::getMessageFlows() { return getLookupContext()->getMessageFlows(); }

StringList TriggerContextImpl::getInputFormats() { return getLookupContext()->getInputFormats(); }

StringList TriggerContextImpl::getOutputFormats() { return getLookupContext()->getOutputFormats(); }

StringList TriggerContextImpl::getNormalizedObjectMappings() {
  return getLookupContext()->getNormalizedObjectMappings();
}

void TriggerContextImpl::bind(const zkstring& name, Object* object) { getLookupContext()->bind(name, object); }

void TriggerContextImpl::rebind(const zkstring& name, Object* object) { getLookupContext()->rebind(name, object); }

Object* TriggerContextImpl::lookup(const zkstring& name) { return getLookupContext()->lookup(name); }

void TriggerContextImpl::unbind(const zkstring& name) { getLookupContext()->unbind(name); }

}  // namespace zarvik
