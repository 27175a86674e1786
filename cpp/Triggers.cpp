#include "Triggers.h"

#include "AbstractTriggerContext.h"
#include "Exceptions.h"
#include "FromCatalogue.h"
#include "ThrowFrom.h"
#include "UserClassManager.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/Triggers";
}  // namespace

Triggers::Triggers(SmartPtr<IInternalMessage> businessTransaction)
    : businessTransaction(std::move(businessTransaction)) {}

Triggers::~Triggers() noexcept(false) = default;

Object* Triggers::invokeTrigger(Properties& /*properties*/) {
  throwFrom(here, TransformException("No on-demand trigger matching the condition specified"));
}

ITrigger* Triggers::getTriggerObject(AbstractTriggerContext& context) {
  if (ITrigger* const present = context.getTriggerObject()) return present;
  const SmartPtr<ITrigger> trigger = createTriggerInstance(context.getTriggerClassName());
  trigger->setContext(&context);
  context.setTriggerObject(trigger.get());
  return trigger.get();
}

SmartPtr<ITrigger> Triggers::createTriggerInstance(const zkstring& className) {
  const SmartPtr<Object> instance(UserClassManager::createInstance(className));
  auto* const trigger = dynamic_cast<ITrigger*>(instance.get());
  if (trigger == nullptr) throwFrom(here, fromCatalogue<NamingException>("SRT100", {className}));
  return trigger;
}

}  // namespace zarvik
