#pragma once

#include "IInternalMessage.h"

namespace zarvik {

/// An internal message that hands every operation on to another: the base of those that decorate one.
class BusinessTransactionWrapper : public IInternalMessage {
 public:
  /// `transaction` is not null, stays the caller's and outlives the wrapper.
  explicit BusinessTransactionWrapper(IInternalMessage* transaction) : transaction(transaction) {}

  SmartPtr<DataObject> createObject() override { return transaction->createObject(); }

  SmartPtr<DataObject> parse(const Binary& bytes, TransformContext& context) override {
    return transaction->parse(bytes, context);
  }
  SmartPtr<DataObject> parse(const RawMessage& message, TransformContext& context) override {
    return transaction->parse(message, context);
  }
  SmartPtr<DataObject> parse(InputSource& source, TransformContext& context) override {
    return transaction->parse(source, context);
  }
  Result<SmartPtr<DataObject>> parse2(const Binary& bytes, TransformContext& context) override {
    return transaction->parse2(bytes, context);
  }
  Result<SmartPtr<DataObject>> parse2(InputSource& source, TransformContext& context) override {
    return transaction->parse2(source, context);
  }

  void validate(const zkstring& name, const SmartPtr<DataObject>& object, TransformContext& context) override {
    transaction->validate(name, object, context);
  }
  void validate(const SmartPtr<DataObject>& object, TransformContext& context) override {
    transaction->validate(object, context);
  }
  Result<SmartPtr<DataObject>> validate2(const zkstring& name, const SmartPtr<DataObject>& object,
                                         TransformContext& context) override {
    return transaction->validate2(name, object, context);
  }
  Result<SmartPtr<DataObject>> validate2(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->validate2(object, context);
  }

  Binary serialize(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->serialize(object, context);
  }
  Result<Binary> serialize2(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->serialize2(object, context);
  }
  RawMessage serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->serializeMessage(object, context);
  }
  Result<RawMessage> serializeMessage2(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->serializeMessage2(object, context);
  }

  DataObject* createNormalizedObject() override { return transaction->createNormalizedObject(); }
  void handleNormalizedObject(DataObject* object, TransformContext& context) override {
    transaction->handleNormalizedObject(object, context);
  }
  SmartPtr<DataObject> preprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->preprocess(object, context);
  }
  Result<SmartPtr<DataObject>> preprocess2(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->preprocess2(object, context);
  }
  Result<SmartPtr<DataObject>> process2(const zkstring& name, const SmartPtr<DataObject>& object,
                                        TransformContext& context) override {
    return transaction->process2(name, object, context);
  }
  SmartPtr<DataObject> postprocess(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->postprocess(object, context);
  }
  SmartPtr<DataObject> process(const zkstring& name, const SmartPtr<DataObject>& object,
                               TransformContext& context) override {
    return transaction->process(name, object, context);
  }
  Result<SmartPtr<DataObject>> postprocess2(const SmartPtr<DataObject>& object, TransformContext& context) override {
    return transaction->postprocess2(object, context);
  }

 protected:
  IInternalMessage* transaction;
};

}  // namespace zarvik
