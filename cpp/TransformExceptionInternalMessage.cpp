#include "TransformExceptionInternalMessage.h"

#include "Exceptions.h"

namespace zarvik {

TransformExceptionInternalMessage::TransformExceptionInternalMessage()
    : AbstractInternalMessage(ExceptionDataObject::THIS_TYPE) {}

DataObject* TransformExceptionInternalMessage::createNormalizedObject() {
  return new TransformException(zkstring::EMPTY);
}

DataObject* TransformExceptionInternalMessage::processNormalizedObject(DataObject* object,
                                                                       ExceptionHandler* /*handler*/,
                                                                       TransformContext& /*context*/) {
  return object;
}

}  // namespace zarvik
