#pragma once

#include "ICustomClass.h"

namespace zarvik {

class ExternalObject;
class TransformContext;

/// A user's mapping between two external messages.
class IExternalMapping : public ICustomClass {
 public:
  virtual void mapFields(ExternalObject* source, ExternalObject* target, TransformContext& context) = 0;
};

}  // namespace zarvik
