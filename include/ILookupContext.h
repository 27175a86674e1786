#pragma once

#include "Object.h"
#include "SmartPtr.h"

namespace zarvik {

class IInputFormat;

/// The process-wide registry in which cartridges bind factories, and objects, under names.
///
/// Binding belongs to start-up; look-ups may then run on many threads, if the factories allow it.
class ILookupContext : public ObjectRef {
 public:
  /// A new instance from the factory bound under `name`. Throws NamingException "Unable to lookup '<name>'" when
  /// nothing is bound there, or no factory of input formats.
  virtual SmartPtr<IInputFormat> lookupInputFormat(const zkstring& name) = 0;

  /// Binds `object` (may be null), of which the registry takes one reference: it owns an object that is not counted.
  /// Where something is bound already, `object` loses one reference and NamingException "<name> already bound" is
  /// thrown; a name bound to null is free.
  virtual void bind(const zkstring& name, Object* object) = 0;
  virtual void rebind(const zkstring& name, Object* object) = 0;  ///< as `bind`, in place of what is there
  virtual Object* lookup(const zkstring& name) = 0;               ///< null if not bound; stays the registry's own
  virtual void unbind(const zkstring& name) = 0;                  ///< ignores unknown names
};

}  // namespace zarvik
