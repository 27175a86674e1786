#pragma once

#include "ExternalObject.h"
#include "IMessage.h"

namespace zarvik {

/// A message in the form of an outside format. Its objects are ExternalObjects: header, data and trailer.
class IExternalMessage : public IMessage {
 public:
  virtual SmartPtr<ExternalObject> createExternalObject() = 0;  ///< new, with its parts, all empty
};

}  // namespace zarvik
