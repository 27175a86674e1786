#pragma once

#include <memory>
#include <vector>

#include "MessageHeader.h"
#include "MessageIdentifier.h"

namespace zarvik {

/// Asks an ordered list of identifiers what an input is; the first that knows it answers.
///
///     MessageIdentificationService service;
///     service.registerMessageIdentifer("CartridgeMessageIdentifier");
///     service.setMessageIdentiferProperty("input.format", "Orders");
///
/// Read-only once set up, as far as its identifiers are; a service that several threads use holds identifiers that
/// keep no state.
class MessageIdentificationService {
 public:
  MessageIdentificationService() = default;  ///< knows nothing
  // A copy shares the identifiers, which go with the last service that holds them.

  /// The service of the process, which knows FIX and then SIAC Canonical, by the classes registered under
  /// "FIXMessageIdentifier" and "SIACCanonicalMessageIdentifier". It lives until the process ends. The first call
  /// comes before threads begin.
  static MessageIdentificationService* getDefault();

  /// Appends a new identifier of the registered class. Throws what `UserClassManager::createInstance` throws, and
  /// ClassCastException for a class that is no identifier.
  void registerMessageIdentifer(const zkstring& className);
  void registerMessageIdentifer(const char* className) { registerMessageIdentifer(zkstring(className)); }
  /// Appends; the service owns `identifier` from here on.
  void registerMessageIdentifer(MessageIdentifier* identifier);

  /// Configures the identifier registered last, and no other; there must be one.
  void setMessageIdentiferProperty(const zkstring& name, const zkstring& value);

  /// What the first identifier that knows `source` says of it: an object with count 0, which belongs to the caller;
  /// null if none does.
  DataObject* identifyMessage(InputSource& source);

  /// The header of the message in the bytes, which are copied; null if no identifier knows them. It belongs to the
  /// caller.
  MessageHeader* parseMessageHeader(const char* data, int length);

 private:
  std::vector<std::shared_ptr<MessageIdentifier>> identifiers;
};

}  // namespace zarvik
