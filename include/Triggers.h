#pragma once

#include "IInternalMessage.h"
#include "Properties.h"
#include "SmartPtr.h"

namespace zarvik {

class AbstractTriggerContext;
class DataObject;
class ITrigger;
class TransformContext;

/// Fires the triggers of one internal message. Generated code derives from it: its dispatch evaluates the conditions
/// and calls each trigger that `getTriggerObject` gives.
///
/// The message is held by a reference, so one that owns its triggers hands them a BusinessTransactionWrapper of itself
/// (trigger contexts likewise): otherwise each keeps the other alive for good.
class Triggers {
 public:
  Triggers(SmartPtr<IInternalMessage> businessTransaction);
  virtual ~Triggers() noexcept(false);

  SmartPtr<IInternalMessage> getBusinessTransaction() { return businessTransaction; }

  void onNewMessage(DataObject* message, TransformContext& context) { onNewMessage0(message, context); }

  /// Runs the on-demand trigger that fits `properties`; its result is the caller's. By default there is none: throws
  /// TransformException "No on-demand trigger matching the condition specified".
  virtual Object* invokeTrigger(Properties& properties);

 protected:
  virtual void onNewMessage0(DataObject* message, TransformContext& context) = 0;
  virtual void onBatchStart0(TransformContext& context) = 0;  ///< for generated code, as the next: not called here
  virtual void onBatchEnd0(TransformContext& context) = 0;

  /// The trigger of `context`, which owns it; made and configured on first use. Throws TransformException for a class
  /// that is not registered, NamingException (code "SRT00") for one that is no trigger, and what the trigger's
  /// `setContext` throws: the next call then starts anew.
  ITrigger* getTriggerObject(AbstractTriggerContext& context);

 private:
  SmartPtr<ITrigger> createTriggerInstance(const zkstring& className);

  SmartPtr<IInternalMessage> businessTransaction;
};

}  // namespace zarvik
