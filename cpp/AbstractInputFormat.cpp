#include "AbstractInputFormat.h"

#include "LookupContextFactory.h"
#include "Stamped.h"

namespace zarvik {

AbstractInputFormat::AbstractInputFormat(const zkstring& transactionName)
    : lookupContext(LookupContextFactory::getLookupContext()),
      transaction(lookupContext->lookupBusinessTransaction(transactionName)) {}

DataObject* AbstractInputFormat::handleInput(InputSource& source, TransformContext& context) {
  SmartPtr<DataObject> owner(createNormalizedObject());
  DataObject* const object = owner.get();
  parseInput(source, object, context);
  object->addRef();  // so that it outlives its owner,
  owner.release();
  object->decRef();  // and goes out without one
  return object;
}

void AbstractInputFormat::processInput(InputSource& source, TransformContext& context) {
  if (normalizedObject.isNull()) {
    normalizedObject = createNormalizedObject();
  } else {
    normalizedObject->reset();
  }
  withPhase(ExceptionObject::getINPUT_PHASE(), [&] { parseInput(source, normalizedObject.get(), context); });
  transaction->handleNormalizedObject(normalizedObject.get(), context);
}

}  // namespace zarvik
