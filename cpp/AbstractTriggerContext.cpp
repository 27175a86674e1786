#include "AbstractTriggerContext.h"

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/AbstractTriggerContext";
}  // namespace

AbstractTriggerContext::AbstractTriggerContext() = default;

AbstractTriggerContext::AbstractTriggerContext(SmartPtr<IInternalMessage> message, const zkstring& triggerClassName,
                                               const zkstring& identity)
    : businessTransaction(std::move(message)), identity(identity), triggerClassName(triggerClassName) {}

AbstractTriggerContext::~AbstractTriggerContext() = default;

void AbstractTriggerContext::init(SmartPtr<IInternalMessage> message, const zkstring& className,
                                  const zkstring& newIdentity) {
  businessTransaction = std::move(message);
  triggerClassName = className;
  identity = newIdentity;
}

void AbstractTriggerContext::addProperty(zkstring name, zkstring value) {
  properties.emplace(std::move(name), std::move(value));
}

void AbstractTriggerContext::setTriggerObject(ITrigger* trigger) {
  const SmartPtr<ITrigger> kept(trigger);  // in case it is the one that is there
  triggerObject = kept;
}

bool AbstractTriggerContext::getProperty(const zkstring& name, zkstring& value) const {
  const auto entry = properties.find(name);
  if (entry == properties.end()) return false;
  value = entry->second;
  return true;
}

zkstring AbstractTriggerContext::getProperty(const zkstring& name) {
  zkstring value;
  if (!getProperty(name, value)) throwFrom(here, NamingException("Property " + name + " not found"));
  return value;
}

}  // namespace zarvik
