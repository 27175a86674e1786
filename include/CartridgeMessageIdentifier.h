#pragma once

#include "IInputFormat.h"
#include "ILookupContext.h"
#include "MessageIdentifier.h"
#include "SmartPtr.h"

namespace zarvik {

/// Identifies a message by parsing it whole with a named input format. An input that does not parse is an error to it,
/// not one of another format, so it stands behind all other identifiers.
///
/// Registered as "CartridgeMessageIdentifier". The format is looked up for the first message and kept.
class CartridgeMessageIdentifier : public MessageIdentifier {
 public:
  /// The parsed object. Throws TransformException when "input.format" is not set, NamingException when no input format
  /// is bound under its value, and what the format throws.
  DataObject* identifyMessage(InputSource& source) override;

  /// Takes the name of the input format, under "input.format"; ignores all other names.
  void setProperty(const zkstring& name, const zkstring& value) override;

 private:
  SmartPtr<IInputFormat> getInputFormat();

  zkstring inputFormatName;
  SmartPtr<ILookupContext> lookupContext;  ///< null before the first message
  SmartPtr<IInputFormat> inputFormat;      ///< null before the first message
};

}  // namespace zarvik

/// Registers the class under its name, once. The library does so by itself.
void registerClassCartridgeMessageIdentifier();
