#pragma once

#include "ICustomClass.h"
#include "Properties.h"

namespace zarvik {

class DataObject;
class TransformContext;
class TriggerContext;

/// An action on a finished message of an internal message. Users register their own by `UserClass`.
///
/// A trigger is made for the first message that fires it, is given its configuration once, and then serves message
/// after message, one at a time.
class ITrigger : public ICustomClass {
 public:
  virtual void onNewMessage(DataObject* message, TransformContext& context) = 0;
  virtual void setContext(TriggerContext* context) = 0;  ///< outlives the trigger, which it owns
  virtual void onBatchStart(TransformContext& context) = 0;
  virtual void onBatchEnd(TransformContext& context) = 0;
  /// Runs it on demand, without a message. The result, which may be null, is the caller's.
  virtual Object* execute(Properties& properties) = 0;
};

}  // namespace zarvik
