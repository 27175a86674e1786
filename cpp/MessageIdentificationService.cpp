#include "MessageIdentificationService.h"

#include <cassert>

namespace zarvik {

void MessageIdentifier::setProperty(const zkstring& /*name*/, const zkstring& /*value*/) {}

MessageIdentificationService* MessageIdentificationService::getDefault() {
  static MessageIdentificationService service;
  return &service;
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

}  // namespace zarvik
