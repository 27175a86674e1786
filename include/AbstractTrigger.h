#pragma once

#include <map>

#include "IOutputFormat.h"
#include "ITrigger.h"
#include "SmartPtr.h"
#include "TransformContext.h"

namespace zarvik {

/// The base of triggers: lays the trigger's own properties over those of the context of each call.
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

  /// The format bound under `name`, looked up once. Throws TransformException for an empty name, and what the look-up
  /// throws.
  SmartPtr<IOutputFormat> getOutputFormat(zkstring name);

  TriggerContext* context = nullptr;  ///< not owned: it owns the trigger
  TransformContextWrapper transformContext;
  std::map<zkstring, SmartPtr<IOutputFormat>> outputFormats;  ///< those resolved so far
};

}  // namespace zarvik
