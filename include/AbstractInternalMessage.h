#pragma once

#include "IInternalMessage.h"
#include "NamedRules.h"

namespace zarvik {

class BusinessProcessingRules;
class ExceptionHandler;
class OutputDevice;
class Triggers;
class ValidationRules;

/// The base of generated internal messages: runs named rules on normalised objects and fires the triggers.
///
///     class OrderTransaction : public AbstractInternalMessage {
///      public:
///       OrderTransaction() : AbstractInternalMessage("OrderTransaction") {
///         addProcessing(PREPROCESSING_NODE_NAME, &preprocessing);
///         addValidator("Default", &rules);
///       }
///       DataObject* createNormalizedObject() override { return new OrderTransactionObject; }
///       Triggers* getTriggers() override { return &triggers; }
///      ...
///
/// An internal message is filled by a mapping or an input format and never parsed: the parse operations throw
/// TransformException. It is written in the compact byte form if the context asks for that, else as XML.
class AbstractInternalMessage : public IInternalMessage {
 public:
  static const zkstringliteral PREPROCESSING_NODE_NAME;   ///< of the processing that runs before validation
  static const zkstringliteral POSTPROCESSING_NODE_NAME;  ///< of the processing that runs behind validation

  explicit AbstractInternalMessage(const zkstring& name);

  SmartPtr<DataObject> createObject() override;

  SmartPtr<DataObject> parse(const Binary& bytes, TransformContext& context) override;
  SmartPtr<DataObject> parse(const RawMessage& message, TransformContext& context) override;
  SmartPtr<DataObject> parse(InputSource& source, TransformContext& context) override;
  Result<SmartPtr<DataObject>> parse2(const Binary& bytes, TransformContext& context) override;
  Result<SmartPtr<DataObject>> parse2(InputSource& source, TransformContext& context) override;

  void validate(const zkstring& validatorName, const SmartPtr<DataObject>& object, TransformContext& context) override;
  void validate(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<SmartPtr<DataObject>> validate2(const zkstring& validatorName, const SmartPtr<DataObject>& object,
                                         TransformContext& context) override;
  Result<SmartPtr<DataObject>> validate2(const SmartPtr<DataObject>& object, TransformContext& context) override;

  // The object that is written is not null.
  Binary serialize(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<Binary> serialize2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  RawMessage serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<RawMessage> serializeMessage2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  void serialize(const SmartPtr<DataObject>& object, OutputDevice& device, TransformContext& context);  ///< stays open

  /// Errors leave with the phase "Internal Message" unless they have one. The message has triggers.
  void handleNormalizedObject(DataObject* object, TransformContext& context) override;
  SmartPtr<DataObject> preprocess(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<SmartPtr<DataObject>> preprocess2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  SmartPtr<DataObject> process(const zkstring& processingName, const SmartPtr<DataObject>& object,
                               TransformContext& context) override;
  Result<SmartPtr<DataObject>> process2(const zkstring& processingName, const SmartPtr<DataObject>& object,
                                        TransformContext& context) override;
  SmartPtr<DataObject> postprocess(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<SmartPtr<DataObject>> postprocess2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  // With the rules' errors going to `handler`.
  void preprocess(const SmartPtr<DataObject>& object, ExceptionHandler* handler, TransformContext& context);
  void postprocess(const SmartPtr<DataObject>& object, ExceptionHandler* handler, TransformContext& context);

  virtual Triggers* getTriggers();  ///< stays the message's own; null by default, for messages that are not routed

 protected:
  // Rules stay the caller's and outlive the message. The first of two with one name stays.
  void addValidator(const zkstring& validatorName, ValidationRules* rules);  ///< the main rules are "Default"
  void addProcessing(const zkstring& processingName, BusinessProcessingRules* rules);

  void validate(const zkstring& validatorName, const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                TransformContext& context);

  zkstring name;

 private:
  BusinessProcessingRules* getProcessingRuleByName(const zkstring& processingName) const;
  ValidationRules* getValidatorByName(const zkstring& validatorName) const;
  bool processingRuleExists(const zkstring& processingName) const;
  void processAll(DataObject* object, TransformContext& context);
  void process(const zkstring& processingName, const SmartPtr<DataObject>& object, ExceptionHandler* handler,
               TransformContext& context);

  NamedRules<ValidationRules> validators;
  NamedRules<BusinessProcessingRules> processings;
};

}  // namespace zarvik
