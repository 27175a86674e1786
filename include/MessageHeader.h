#pragma once

#include "zkstring.h"

namespace zarvik {

/// What a message says of itself, whatever its format: format, type, version and further header fields by name.
class MessageHeader {
 public:
  virtual zkstring getMessageFormat() = 0;
  virtual zkstring getMessageType() = 0;
  virtual zkstring getMessageVersion() = 0;
  virtual zkstring getHeaderField(const zkstring& name) = 0;
  virtual ~MessageHeader() noexcept(false) = default;
};

}  // namespace zarvik
