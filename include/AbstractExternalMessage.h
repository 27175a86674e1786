#pragma once

#include <optional>

#include "IExternalMessage.h"
#include "ILookupContext.h"
#include "NamedRules.h"

namespace zarvik {

class ExceptionHandler;
class FieldsValidationRules;
class InputParser;
class SimpleOutputWriter;

/// The base of generated external messages: knows the forms of a message and the order of validation, while generated
/// code supplies the object, the parser, the writer and the rules.
///
///     class OrderMessage : public AbstractExternalMessage {
///      public:
///       OrderMessage() : AbstractExternalMessage("Order") { addValidator("Default", &rules); }
///       SmartPtr<ExternalObject> createExternalObject() override;
///       InputParser* getInputParser() override { return &parser; }
///       SimpleOutputWriter* getOutputWriter() override { return &writer; }
///      ...
///
/// Under the form "xml" an object can be written but not parsed, which throws TransformException. A RawMessage is
/// parsed as the own form whatever the context says.
///
/// Whatever takes an object takes an ExternalObject: TransformRuntimeException "Unexpected null object. Expected
/// external object" or "Unexpected object of type <class>. Expected external object" tells of anything else.
///
/// Parser, writer and rules keep the handler of the last call: nobody uses them but through the message.
class AbstractExternalMessage : public IExternalMessage {
 public:
  SmartPtr<DataObject> createObject() override;

  SmartPtr<DataObject> parse(const Binary& bytes, TransformContext& context) override;
  SmartPtr<DataObject> parse(const RawMessage& message, TransformContext& context) override;
  SmartPtr<DataObject> parse(InputSource& source, TransformContext& context) override;
  Result<SmartPtr<DataObject>> parse2(const Binary& bytes, TransformContext& context) override;
  Result<SmartPtr<DataObject>> parse2(InputSource& source, TransformContext& context) override;

  void validate(const zkstring& name, const SmartPtr<DataObject>& object, TransformContext& context) override;
  void validate(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<SmartPtr<DataObject>> validate2(const zkstring& name, const SmartPtr<DataObject>& object,
                                         TransformContext& context) override;
  Result<SmartPtr<DataObject>> validate2(const SmartPtr<DataObject>& object, TransformContext& context) override;

  Binary serialize(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<Binary> serialize2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  RawMessage serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) override;
  Result<RawMessage> serializeMessage2(const SmartPtr<DataObject>& object, TransformContext& context) override;
  /// With the writer's errors going to `handler`.
  RawMessage serializeMessage(const SmartPtr<DataObject>& object, ExceptionHandler* handler, TransformContext& context);

  virtual InputParser* getInputParser() = 0;          ///< stays the message's own
  virtual SimpleOutputWriter* getOutputWriter() = 0;  ///< stays the message's own

 protected:
  explicit AbstractExternalMessage(const zkstring& name);

  /// `rules` stay the caller's and outlive the message. The first of two with one name stays. The main rules are
  /// "Default".
  void addValidator(const zkstring& validatorName, FieldsValidationRules* rules);
  /// Throws TransformRuntimeException "Validator by name '<name>' is not defined for the message".
  FieldsValidationRules* getValidatorByName(const zkstring& validatorName) const;

  // The operations above, with errors going to `handler`.
  SmartPtr<DataObject> parse(const Binary& bytes, ExceptionHandler* handler, TransformContext& context);
  Binary serialize(const SmartPtr<DataObject>& object, ExceptionHandler* handler, TransformContext& context);
  void validate(const SmartPtr<DataObject>& object, ExceptionHandler* handler, TransformContext& context);
  void validate(const zkstring& validatorName, const SmartPtr<DataObject>& object, ExceptionHandler* handler,
                TransformContext& context);

  // Hooks at the entry of generated operations, for a build that traces; here they do nothing.
  void methodEnteredTrace(const zkstring& /*method*/) const {}
  void methodEnteredTrace(const char* /*method*/) const {}

  SmartPtr<ILookupContext> lookupContext;
  zkstring name;

 private:
  template <class Bytes>
  SmartPtr<DataObject> parseOwnForm(Bytes& bytes, ExceptionHandler* handler, TransformContext& context);
  /// `object` in the form that the context asks for, or nothing where that is the message's own.
  static std::optional<Binary> genericForm(ExternalObject& object, TransformContext& context);

  NamedRules<FieldsValidationRules> validators;
};

}  // namespace zarvik
