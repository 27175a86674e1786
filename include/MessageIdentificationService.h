#pragma once

#include <memory>
#include <vector>

#include "MessageIdentifier.h"

namespace zarvik {

/// Asks an ordered list of identifiers what an input is. Read-only once set up, as far as its identifiers are.
class MessageIdentificationService {
 public:
  MessageIdentificationService() = default;
  MessageIdentificationService(const MessageIdentificationService&) = delete;
  MessageIdentificationService& operator=(const MessageIdentificationService&) = delete;
  ~MessageIdentificationService() = default;

  /// The service of the process, which lives until the process ends. The first call comes before threads begin.
  static MessageIdentificationService* getDefault();

  /// Appends; the service owns `identifier` from here on.
  void registerMessageIdentifer(MessageIdentifier* identifier);

  /// Configures the identifier registered last, and no other; there must be one.
  void setMessageIdentiferProperty(const zkstring& name, const zkstring& value);

  /// What the first identifier that knows `source` says of it: an object with count 0, which belongs to the caller;
  /// null if none does.
  DataObject* identifyMessage(InputSource& source);

 private:
  std::vector<std::unique_ptr<MessageIdentifier>> identifiers;
};

}  // namespace zarvik
