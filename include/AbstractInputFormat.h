#pragma once

#include "DataObject.h"
#include "IInputFormat.h"
#include "IInternalMessage.h"
#include "ILookupContext.h"
#include "SmartPtr.h"

namespace zarvik {

/// The base of generated input formats: which object a source is parsed into, and which internal message takes it.
///
///     class OrdersFormat : public AbstractInputFormat {
///      public:
///       OrdersFormat() : AbstractInputFormat("OrderTransaction") {}
///       void parseInput(InputSource& source, DataObject* object, TransformContext& context) override;
///       DataObject* createNormalizedObject() override { return new OrderTransactionObject; }
///     };
///
/// `processInput` fills one and the same object for every message, so that its tree is built once: whoever wants to
/// keep an object beyond the call keeps a clone.
class AbstractInputFormat : public IInputFormat {
 public:
  /// Throws NamingException when no internal message is bound under `transactionName`.
  explicit AbstractInputFormat(const zkstring& transactionName);

  /// Parses into a new object.
  DataObject* handleInput(InputSource& source, TransformContext& context) override;
  /// Parses and hands the object to the internal message. Errors of the parser leave with the phase "Input" unless
  /// they have one.
  void processInput(InputSource& source, TransformContext& context) override;

  virtual void parseInput(InputSource& source, DataObject* object, TransformContext& context) = 0;
  virtual DataObject* createNormalizedObject() = 0;  ///< new and empty, with count 0

 protected:
  SmartPtr<ILookupContext> lookupContext;
  SmartPtr<IInternalMessage> transaction;
  SmartPtr<DataObject> normalizedObject;  ///< null before the first message
};

}  // namespace zarvik
