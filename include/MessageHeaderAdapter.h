#pragma once

#include "MessageHeader.h"

namespace zarvik {

class DataObject;

/// Reads a data object as a message header. Texts that it gives are views of the object's fields, not copies.
class MessageHeaderAdapter : public MessageHeader {
 public:
  /// Looks at `message`, which is not null; an `owner` deletes it in the end.
  MessageHeaderAdapter(DataObject* message, bool owner) : message(message), owner(owner) {}
  /// A copy looks at the same object and does not own it.
  MessageHeaderAdapter(const MessageHeaderAdapter& other)
      : MessageHeader(other), message(other.message), owner(false) {}
  MessageHeaderAdapter& operator=(const MessageHeaderAdapter&) = delete;
  ~MessageHeaderAdapter() override;

  zkstring getMessageFormat() override;                    ///< the field "MessageFormat"
  zkstring getMessageType() override;                      ///< the field "MessageType"
  zkstring getMessageVersion() override;                   ///< the field "MessageVersion"
  zkstring getHeaderField(const zkstring& name) override;  ///< the field's text; empty for a null field

 private:
  DataObject* message;
  bool owner;
};

}  // namespace zarvik
