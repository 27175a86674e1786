#include "CartridgeMessageIdentifier.h"

#include "Exceptions.h"
#include "LookupContextFactory.h"
#include "StartUp.h"
#include "ThrowFrom.h"
#include "TransformContext.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/CartridgeMessageIdentifier";
constinit const zkstringliteral className("CartridgeMessageIdentifier");
constinit const zkstringliteral identification("MessageID");
}  // namespace

DataObject* CartridgeMessageIdentifier::identifyMessage(InputSource& source) {
  TransformContext context;
  context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, identification);
  return getInputFormat()->handleInput(source, context);
}

void CartridgeMessageIdentifier::setProperty(const zkstring& name, const zkstring& value) {
  if (name == TransformContext::INPUT_FORMAT_PROPERTY) inputFormatName = value;
}

SmartPtr<IInputFormat> CartridgeMessageIdentifier::getInputFormat() {
  if (inputFormatName.empty()) {
    throwFrom(here, TransformException("The property 'input.format' not set for CartridgeMessageIdentifier"));
  }
  if (inputFormat.isNull()) {
    if (lookupContext.isNull()) lookupContext = LookupContextFactory::getLookupContext();
    inputFormat = lookupContext->lookupInputFormat(inputFormatName);
  }
  return inputFormat;
}

}  // namespace zarvik

void registerClassCartridgeMessageIdentifier() {
  zarvik::registerLibraryClass<zarvik::CartridgeMessageIdentifier>(zarvik::className);
}
