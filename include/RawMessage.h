#pragma once

#include "Object.h"
#include "SmartPtr.h"

namespace zarvik {

/// A block of bytes on its way through the system.
class IRawMessage : public virtual ObjectRef {
 public:
  ~IRawMessage() noexcept(false) override = default;
};

/// The handle by which raw messages are passed: one count on the message, null when empty.
class RawMessage : public SmartPtr<IRawMessage> {
 public:
  using SmartPtr<IRawMessage>::SmartPtr;
};

}  // namespace zarvik
