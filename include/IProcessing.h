#pragma once

#include "ICustomClass.h"

namespace zarvik {

class DataObject;
class TransformContext;

/// A user's processing of a whole object, which generated steps call.
class IProcessing : public ICustomClass {
 public:
  virtual void process(DataObject* object, TransformContext& context) = 0;
};

}  // namespace zarvik
