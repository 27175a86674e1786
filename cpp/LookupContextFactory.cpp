#include "LookupContextFactory.h"

#include "LookupContextImpl.h"
#include "ObjectFactory.h"
#include "SimpleXMLOutputFormat.h"

namespace zarvik {
namespace {

constinit const zkstringliteral xmlFormatName("NOXMLOut");
}  // namespace

LookupContextFactory& LookupContextFactory::getLookupContextFactory() {
  static LookupContextFactory factory;
  static bool used = false;
  if (!used) {  // written once alone: afterwards threads may read it
    used = true;
    LookupContextImpl().bind(xmlFormatName, new GenericObjectFactory<SimpleXMLOutputFormat>);
  }
  return factory;
}

SmartPtr<ILookupContext> LookupContextFactory::getLookupContext() {
  return getLookupContextFactory().createLookupContext();
}

SmartPtr<ILookupContext> LookupContextFactory::createLookupContext() { return new LookupContextImpl; }

}  // namespace zarvik
