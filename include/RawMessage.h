#pragma once

#include <functional>
#include <vector>

#include "IPropertyMap.h"
#include "InputSource.h"
#include "SmartPtr.h"
#include "VList.h"

namespace zarvik {

class RawMessage;

/// A block of bytes on its way through the system, with properties, a name, a label of its encoding and attachments.
///
/// The bytes never change, and are passed on as they are: no operation converts characters.
class IRawMessage : public IPropertyMap, public InputSource {
 public:
  static const zkstringliteral CORRELATION_ID_PROPERTY;
  static const zkstringliteral REPLY_TO_PROPERTY;
  static const zkstringliteral CORRELATION_GROUP_SIZE_PROPERTY;  ///< empty, and so the same key as the next
  static const zkstringliteral CORRELATION_SEQUENCE_PROPERTY;

  ~IRawMessage() noexcept(false) override = default;

  virtual void setName(const zkstring& name) = 0;
  virtual zkstring getName() = 0;
  virtual zkstring getAsString() = 0;                                        ///< the bytes
  virtual zkstring getAsString(const zkstring& encoding) = 0;                ///< the bytes, whatever the encoding
  virtual void addAttachment(const zkstring& name, RawMessage message) = 0;  ///< in place of one of the same name
  virtual void removeAttachment(const zkstring& name) = 0;                   ///< ignores unknown names
  /// The attachment. Odd on purpose: asking for an unknown name gives null and makes the name known.
  virtual RawMessage getAttachment(const zkstring& name) = 0;
  virtual bool hasAttachment(const zkstring& name) = 0;
  virtual StringList getAttachmentNames() = 0;  ///< in the order of `zkstring` comparison
  virtual zkstring getEncoding() = 0;
  virtual void setEncoding(const zkstring& encoding) = 0;
};

/// The handle by which raw messages are passed: one count on the message, null when empty.
class RawMessage : public SmartPtr<IRawMessage> {
 public:
  using SmartPtr<IRawMessage>::SmartPtr;

  /// Handles are equal when they lead to the same message, and stand in the order of addresses.
  bool operator==(const RawMessage& other) const { return get() == other.get(); }
  bool operator<(const RawMessage& other) const { return std::less<>()(get(), other.get()); }
};

using RawMessageList = VList<std::vector<RawMessage>, RawMessage>;

}  // namespace zarvik
