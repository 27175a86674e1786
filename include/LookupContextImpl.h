#pragma once

#include "ILookupContext.h"

namespace zarvik {

/// A handle to the one registry of the process: all instances see the same bindings.
class LookupContextImpl : public ILookupContext {
 public:
  SmartPtr<IInputFormat> lookupInputFormat(const zkstring& name) override;
  void bind(const zkstring& name, Object* object) override;
  void rebind(const zkstring& name, Object* object) override;
  Object* lookup(const zkstring& name) override;
  void unbind(const zkstring& name) override;

  Object* clone() const override { return new LookupContextImpl; }
};

}  // namespace zarvik
