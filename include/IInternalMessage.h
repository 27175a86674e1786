#pragma once

#include "IMessage.h"

namespace zarvik {

/// A message in normalised form, also called a business transaction, with its rules and triggers.
///
/// The operations with a rule's name behind them run the rules on the given object, which they return; `preprocess`
/// and `postprocess` do nothing for a message without the rule. Those whose names end in 2 collect errors as those of
/// IMessage do.
class IInternalMessage : public IMessage {
 public:
  virtual DataObject* createNormalizedObject() = 0;  ///< new and empty, with count 0: the caller's
  /// Takes a filled object through preprocessing, validation and postprocessing to the triggers. The object stays the
  /// caller's, with the count that it has, also when a step throws.
  virtual void handleNormalizedObject(DataObject* object, TransformContext& context) = 0;
  virtual SmartPtr<DataObject> preprocess(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> preprocess2(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> process2(const zkstring& name, const SmartPtr<DataObject>& object,
                                                TransformContext& context) = 0;
  virtual SmartPtr<DataObject> postprocess(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  /// By the processing rule `name`. Throws TransformRuntimeException for one that the message does not have.
  virtual SmartPtr<DataObject> process(const zkstring& name, const SmartPtr<DataObject>& object,
                                       TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> postprocess2(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
};

}  // namespace zarvik
