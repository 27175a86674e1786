#pragma once

#include "ICustomClass.h"

namespace zarvik {

class DataObject;
class ExternalObject;
class TransformContext;

/// A user's mapping of an external message to a normalised object.
class IInputMapping : public ICustomClass {
 public:
  virtual void mapFields(ExternalObject* source, DataObject* target, TransformContext& context) = 0;
};

}  // namespace zarvik
