#pragma once

#include "ICustomClass.h"

namespace zarvik {

class ObjectList;
class TransformContext;

/// A user's function, called from formulas by its class name.
class IInvokable : public ICustomClass {
 public:
  virtual Object* invoke(const ObjectList& arguments, TransformContext& context) = 0;  ///< the result is the caller's
};

}  // namespace zarvik
