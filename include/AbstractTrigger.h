#pragma once

#include <map>

#include "IOutputFormat.h"
#include "ITrigger.h"
#include "SmartPtr.h"
#include "TransformContext.h"

namespace zarvik {

/// The base of triggers: lays the trigger's own properties over those of the context of each call.
///
///     void onNewMessage(DataObject* message, TransformContext& callContext) override {
///       const Call call(*this, callContext);
///       getOutputFormat(transformContext.getProperty(TransformContext::OUTPUT_FORMAT_PROPERTY))
///           ->write(message, transformContext);
///     }
class AbstractTrigger : public ITrigger {
 public:
  AbstractTrigger();
  ~AbstractTrigger() override;

  /// Takes over the properties of `context`, and its identity as "output.destination".
  void setContext(TriggerContext* context) override;
  Object* execute(Properties& properties) override;  ///< throws TransformException "Nothing to execute"

 protected:
  /// `callContext` under the trigger's properties; valid until the next call of the trigger.
  TransformContext& getTransformContext(TransformContext& callContext);

  /// One call, for as long as it lasts: `callContext` is under the trigger's properties. What the trigger sets off may
  /// lead back to it, with a context that ends there: behind such a call the one around it has its own context again.
  class Call {
   public:
    Call(AbstractTrigger& trigger, TransformContext& callContext);
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();

   private:
    AbstractTrigger& trigger;
    TransformContext* const around;  ///< of the call that this one came within; null if there is none
  };

  /// The format bound under `name`, looked up once. Throws TransformException for an empty name, and what the look-up
  /// throws.
  SmartPtr<IOutputFormat> getOutputFormat(zkstring name);

  TriggerContext* context = nullptr;  ///< not owned: it owns the trigger
  TransformContextWrapper transformContext;
  std::map<zkstring, SmartPtr<IOutputFormat>> outputFormats;  ///< those resolved so far

 private:
  bool inCall = false;
};

}  // namespace zarvik
