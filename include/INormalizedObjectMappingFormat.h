#pragma once

#include "IService.h"

namespace zarvik {

class DataObject;
class TransformContext;

/// Maps the normalised object of one internal message to that of another.
class INormalizedObjectMappingFormat : public IService {
 public:
  /// Maps `count` objects in order; the array that comes back is the caller's, to be freed by `delete[]`. It is empty
  /// for a count below 1.
  virtual DataObject** map(DataObject** sources, int count, TransformContext& context) = 0;
  virtual DataObject* map(DataObject* source, TransformContext& context) = 0;  ///< a new object, the caller's
  virtual zkstring getDestinationMessageName() = 0;
  virtual zkstring getSourceMessageName() = 0;
};

}  // namespace zarvik
