#pragma once

#include "Object.h"

namespace zarvik {

/// A structured record: a message, a header, an element of a repeating group.
class DataObject : public ObjectRef {
 public:
  /// The value of the field, which belongs to the caller; null for a field that is null.
  virtual Object* getField(const zkstring& name) const = 0;
  virtual zkstring toXMLString() = 0;
};

}  // namespace zarvik
