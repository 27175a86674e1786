#pragma once

#include "AbstractTriggerContext.h"

namespace zarvik {

/// The trigger context of generated code: look-ups are answered by the process-wide registry.
///
///     TriggerContextImpl context(message, "RouterTrigger", "Settlement");
///     context.addProperty(TransformContext::OUTPUT_FORMAT_PROPERTY, "SettlementOut");
class TriggerContextImpl : public AbstractTriggerContext {
 public:
  using AbstractTriggerContext::AbstractTriggerContext;

  Object* lookupComponent(const zkstring& name) override;
  SmartPtr<INormalizedObjectMappingFormat> lookupNormalizedObjectMappingFormat(const zkstring& name) override;
  SmartPtr<IMessage> lookupMessage(const zkstring& name) override;
  SmartPtr<IExternalMessage> lookupExternalMessage(const zkstring& name) override;
  SmartPtr<IInternalMessage> lookupBusinessTransaction(const zkstring& name) override;
  SmartPtr<IMessageMapping> lookupMessageMapping(const zkstring& name) override;
  SmartPtr<IMessageFlow> lookupMessageFlow(const zkstring& name) override;
  SmartPtr<IInternalMessage> lookupInternalMessage(const zkstring& name) override;
  SmartPtr<IInputFormat> lookupInputFormat(const zkstring& name) override;
  SmartPtr<IOutputFormat> lookupOutputFormat(const zkstring& name) override;
  IOutputProtocol* lookupOutputProtocol(const zkstring& name) override;
  StringList getMessages() override;
  StringList getExternalMessages() override;
  StringList getInternalMessages() override;
  StringList getMessageMappings() override;
  StringList getMessageFlows() override;
  StringList getInputFormats() override;
  StringList getOutputFormats() override;
  StringList getNormalizedObjectMappings() override;
  void bind(const zkstring& name, Object* object) override;
  void rebind(const zkstring& name, Object* object) override;
  Object* lookup(const zkstring& name) override;
  void unbind(const zkstring& name) override;

 private:
  SmartPtr<ILookupContext> getLookupContext();

  SmartPtr<ILookupContext> lookupContext;  ///< null before the first look-up
};

}  // namespace zarvik
