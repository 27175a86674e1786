#pragma once

#include "Binary.h"
#include "DataObject.h"
#include "IService.h"
#include "RawMessage.h"
#include "Result.h"
#include "SmartPtr.h"

namespace zarvik {

class TransformContext;

/// A type of messages: makes, parses, validates and writes objects of it.
///
///     const SmartPtr<IMessage> orders = registry->lookupMessage("Orders");
///     const SmartPtr<DataObject> order = orders->parse(bytes, context);
///     orders->validate(order, context);
///     const Binary copy = orders->serialize(order, context);
///
/// The plain operations throw the first error that is met. Those whose names end in 2 go on after an error as far as
/// the parser, the rules or the writer can, and return the errors with the value; what these throw, rather than
/// report, passes through, and the entries so far are gone.
///
/// The context property `MESSAGE_FORMAT` selects the form of the bytes. A message keeps the handler of errors in its
/// parser, rules and writer for the length of a call, so it serves one thread at a time.
class IMessage : public IService {
 public:
  static const zkstringliteral MESSAGE_FORMAT;  ///< the context property that selects the form of the bytes
  static const zkstringliteral XML_FORM;        ///< the generic XML text
  static const zkstringliteral ZARVIK_FORM;  ///< the compact byte form of DataObjectIO; any other value is the own form

  virtual SmartPtr<DataObject> createObject() = 0;  ///< new and empty

  virtual SmartPtr<DataObject> parse(const Binary& bytes, TransformContext& context) = 0;
  virtual SmartPtr<DataObject> parse(const RawMessage& message, TransformContext& context) = 0;  ///< not null
  virtual SmartPtr<DataObject> parse(InputSource& source, TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> parse2(const Binary& bytes, TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> parse2(InputSource& source, TransformContext& context) = 0;

  /// By the validator `name`, or without one by that named "Default". Throws TransformRuntimeException for a name that
  /// the message does not have. The value of a `validate2` is null.
  virtual void validate(const zkstring& name, const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual void validate(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> validate2(const zkstring& name, const SmartPtr<DataObject>& object,
                                                 TransformContext& context) = 0;
  virtual Result<SmartPtr<DataObject>> validate2(const SmartPtr<DataObject>& object, TransformContext& context) = 0;

  virtual Binary serialize(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual Result<Binary> serialize2(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual RawMessage serializeMessage(const SmartPtr<DataObject>& object, TransformContext& context) = 0;
  virtual Result<RawMessage> serializeMessage2(const SmartPtr<DataObject>& object, TransformContext& context) = 0;

 protected:
  static bool isZarvikFormat(const zkstring& format) { return format == ZARVIK_FORM; }
};

}  // namespace zarvik
