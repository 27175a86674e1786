#pragma once

#include "AbstractTrigger.h"
#include "IInternalMessage.h"
#include "INormalizedObjectMappingFormat.h"

namespace zarvik {

/// Hands the message on to another internal message, by the mapping named in the trigger's property
/// "internalmapping.format"; the target's rules and triggers then run within the call.
class InternalRouterTrigger : public AbstractTrigger {
 public:
  /// Throws NamingException when the property is missing, and what the look-ups of the mapping and of its target
  /// throw.
  void setContext(TriggerContext* context) override;
  void onNewMessage(DataObject* message, TransformContext& callContext) override;
  void onBatchStart(TransformContext& callContext) override;  ///< does nothing but note the context
  void onBatchEnd(TransformContext& callContext) override;    ///< as `onBatchStart`

 private:
  void initNormalizedObjectMappingFormat();

  SmartPtr<INormalizedObjectMappingFormat> normalizedObjectMappingFormat;
  SmartPtr<IInternalMessage> internalMessage;  ///< the target
  zkstring normalizedObjectMappingFormatName;
};

}  // namespace zarvik

/// Registers the class as "InternalRouterTrigger", once. For a host or a `Registrar` to call: the library does not.
void registerClassInternalRouterTrigger();
