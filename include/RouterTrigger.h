#pragma once

#include "AbstractTrigger.h"

namespace zarvik {

/// Writes the message through an output format: the one named by the trigger's own property "output.format" or, if it
/// has none, by that of the context.
///
/// The format sees the trigger's properties too, such as "output.device". Without a name of a format every operation
/// throws TransformException "RouterTrigger: Output format is not configured (null)".
class RouterTrigger : public AbstractTrigger {
 public:
  void onNewMessage(DataObject* message, TransformContext& callContext) override;
  void onBatchStart(TransformContext& callContext) override;  ///< resolves the format, so that a missing one shows here
  void onBatchEnd(TransformContext& callContext) override;    ///< as `onBatchStart`

 private:
  SmartPtr<IOutputFormat> outputFormat();  ///< that of the call in progress
};

}  // namespace zarvik

/// Registers the class as "RouterTrigger", once. For a host or a `Registrar` to call: the library does not.
void registerClassRouterTrigger();
