#include "MessageIdentificationService.h"

#include <cassert>

#include "ByteArrayInputSource.h"
#include "DataObject.h"
#include "GuardedCast.h"
#include "MessageHeaderAdapter.h"
#include "SmartPtr.h"
#include "UserClassManager.h"

namespace zarvik {
namespace {

/// A new identifier of the registered class; an object of another class is gone when the cast's error leaves.
MessageIdentifier* newIdentifier(const zkstring& className) {
  Object* const instance = UserClassManager::createInstance(className);
  try {
    return guardedCast<MessageIdentifier>(instance);
  } catch (...) {
    const SmartPtr<Object> refused(instance);  // counted up, so that letting go deletes a counted object too
    throw;
  }
}

MessageIdentificationService defaultService() {
  MessageIdentificationService service;
  service.registerMessageIdentifer("FIXMessageIdentifier");
  service.registerMessageIdentifer("SIACCanonicalMessageIdentifier");
  return service;
}
}  // namespace

void MessageIdentifier::setProperty(const zkstring& /*name*/, const zkstring& /*value*/) {}

MessageIdentificationService* MessageIdentificationService::getDefault() {
  static MessageIdentificationService service = defaultService();
  return &service;
}

void MessageIdentificationService::registerMessageIdentifer(const zkstring& className) {
  registerMessageIdentifer(newIdentifier(className));
}

void MessageIdentificationService::registerMessageIdentifer(MessageIdentifier* identifier) {
  identifiers.emplace_back(identifier);
}

void MessageIdentificationService::setMessageIdentiferProperty(const zkstring& name, const zkstring& value) {
  assert(!identifiers.empty());
  identifiers.back()->setProperty(name, value);
}

DataObject* MessageIdentificationService::identifyMessage(InputSource& source) {
  for (const auto& identifier : identifiers) {
    if (DataObject* const message = identifier->identifyMessage(source)) return message;
  }
  return nullptr;
}

MessageHeader* MessageIdentificationService::parseMessageHeader(const char* data, int length) {
  ByteArrayInputSource source(data, length, false);
  DataObject* const message = identifyMessage(source);
  return message != nullptr ? new MessageHeaderAdapter(message, true) : nullptr;
}

zkstring MessageHeader::stringform() {
  return "MessageFormat = " + getMessageFormat() + ", Message Version = " + getMessageVersion() +
         ", Message Type = " + getMessageType();
}

}  // namespace zarvik
