#pragma once

#include "RawMessage.h"
#include "WrapperObjects.h"

namespace zarvik {

/// A boxed raw message: shares it, and prints as the message itself does; empty for a null one.
class RawMessageObject : public Boxed<RawMessageObject, WrapperObject, RawMessage> {
 public:
  using Boxed::Boxed;
  zkstring toString() const override;
  const zkstring& getObjectType() const override;
  const RawMessage& getRawMessage() const override { return value; }
  void setRawMessage(const RawMessage& message) override { value = RawMessage(message); }  ///< may be its own
  void setObject(const Object* other) override;
};

}  // namespace zarvik
