#pragma once

#include "ILookupContext.h"

namespace zarvik {

/// Hands out contexts of the process-wide registry. The first call comes before threads begin: it binds the library's
/// own output format, "NOXMLOut", and throws NamingException if that name is taken by then.
class LookupContextFactory {
 public:
  static LookupContextFactory& getLookupContextFactory();
  static SmartPtr<ILookupContext> getLookupContext();

  SmartPtr<ILookupContext> createLookupContext();
};

}  // namespace zarvik
