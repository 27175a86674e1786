#pragma once

#include "AbstractInternalMessage.h"

namespace zarvik {

/// The internal message under which flows treat errors as messages: its normalised object is a TransformException.
class TransformExceptionInternalMessage : public AbstractInternalMessage {
 public:
  TransformExceptionInternalMessage();

  DataObject* createNormalizedObject() override;  ///< a new error with an empty message
  /// `object` itself.
  virtual DataObject* processNormalizedObject(DataObject* object, ExceptionHandler* handler, TransformContext& context);
};

}  // namespace zarvik
