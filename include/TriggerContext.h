#pragma once

#include "ILookupContext.h"
#include "Properties.h"

namespace zarvik {

/// The configuration of one trigger of one internal message, and the look-ups that the trigger needs: the one object
/// through which a trigger reaches everything.
class TriggerContext : public ILookupContext {
 public:
  virtual bool getProperty(const zkstring& name, zkstring& value) const = 0;  ///< false, `value` untouched: not there
  virtual zkstring getProperty(const zkstring& name) = 0;  ///< throws NamingException "Property <name> not found"
  virtual Properties& getProperties() = 0;
  virtual SmartPtr<IInternalMessage> getBusinessTransaction() = 0;
  virtual zkstring getIdentity() = 0;  ///< the output destination of what the trigger writes
};

}  // namespace zarvik
