#pragma once

#include "ITrigger.h"
#include "TriggerContext.h"

namespace zarvik {

/// The configuration of a trigger, without the look-ups; owns the trigger once that is made.
class AbstractTriggerContext : public TriggerContext {
 public:
  AbstractTriggerContext();
  AbstractTriggerContext(SmartPtr<IInternalMessage> message, const zkstring& triggerClassName,
                         const zkstring& identity);
  AbstractTriggerContext(const AbstractTriggerContext&) = delete;
  AbstractTriggerContext& operator=(const AbstractTriggerContext&) = delete;
  ~AbstractTriggerContext() override;

  void init(SmartPtr<IInternalMessage> message, const zkstring& triggerClassName, const zkstring& identity);
  void addProperty(zkstring name, zkstring value);  ///< a name that is there keeps its value
  zkstring getTriggerClassName() { return triggerClassName; }
  ITrigger* getTriggerObject() { return triggerObject.get(); }  ///< null before it is made
  /// Owns one reference on `trigger`; a trigger before it loses that reference.
  void setTriggerObject(ITrigger* trigger);

  bool getProperty(const zkstring& name, zkstring& value) const override;
  zkstring getProperty(const zkstring& name) override;
  Properties& getProperties() override { return properties; }
  SmartPtr<IInternalMessage> getBusinessTransaction() override { return businessTransaction; }
  zkstring getIdentity() override { return identity; }

 private:
  Properties properties;
  SmartPtr<IInternalMessage> businessTransaction;
  zkstring identity;
  zkstring triggerClassName;
  SmartPtr<ITrigger> triggerObject;
};

}  // namespace zarvik
