#pragma once

#include "IService.h"

namespace zarvik {

class DataObject;
class InputSource;
class TransformContext;

/// The entry of routed inputs of one format: parses a source and hands the result on to its internal message.
///
/// A format keeps state from one message to the next, so one instance serves one thread at a time.
class IInputFormat : public IService {
 public:
  /// The parsed object, with count 0, which belongs to the caller; the internal message does not see it.
  virtual DataObject* handleInput(InputSource& source, TransformContext& context) = 0;
  /// Parses `source` and hands the object, which stays the format's own, to the internal message.
  virtual void processInput(InputSource& source, TransformContext& context) = 0;
};

}  // namespace zarvik
