#pragma once

#include "Object.h"

namespace zarvik {

class DataObject;
class InputSource;

/// Recognises the messages of one format.
class MessageIdentifier : public Object {
 public:
  /// At least the header of the message, as a new object with count 0, which belongs to the caller; null if `source`
  /// is not of this format. Leaves `source` readable from its start.
  virtual DataObject* identifyMessage(InputSource& source) = 0;

  virtual void setProperty(const zkstring& name, const zkstring& value);  ///< does nothing unless overridden
};

}  // namespace zarvik
