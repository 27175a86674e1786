#include "LookupContextFactory.h"

#include "LookupContextImpl.h"

namespace zarvik {

LookupContextFactory& LookupContextFactory::getLookupContextFactory() {
  static LookupContextFactory factory;
  return factory;
}

SmartPtr<ILookupContext> LookupContextFactory::getLookupContext() {
  return getLookupContextFactory().createLookupContext();
}

SmartPtr<ILookupContext> LookupContextFactory::createLookupContext() { return new LookupContextImpl; }

}  // namespace zarvik
