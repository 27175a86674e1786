#pragma once

#include "ICustomClass.h"

namespace zarvik {

class DataObject;
class TransformContext;

/// A user's mapping of a normalised object to an external message, run behind the generated one of each part.
class IOutputMapping : public ICustomClass {
 public:
  virtual void mapHeaderFields(DataObject* source, DataObject* header, TransformContext& context) = 0;
  virtual void mapDataFields(DataObject* source, DataObject* data, TransformContext& context) = 0;
  /// Odd on purpose: it is given the finished data, not the normalised object.
  virtual void mapTrailerFields(DataObject* data, DataObject* trailer, TransformContext& context) = 0;
};

}  // namespace zarvik
