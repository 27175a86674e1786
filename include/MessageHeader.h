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

  /// "MessageFormat = <format>, Message Version = <version>, Message Type = <type>"; the first label has no blank.
  zkstring stringform();
};

}  // namespace zarvik
