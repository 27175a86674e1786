#pragma once

#include "IExternalMessage.h"
#include "IInputFormat.h"
#include "IInternalMessage.h"
#include "IMessage.h"
#include "IMessageFlow.h"
#include "IMessageMapping.h"
#include "INormalizedObjectMappingFormat.h"
#include "IOutputFormat.h"
#include "IOutputProtocol.h"
#include "SmartPtr.h"
#include "VList.h"

namespace zarvik {

/// The process-wide registry in which cartridges bind factories, and objects, under names.
///
///     const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
///     registry->bind("Orders", new GenericObjectFactory<OrdersFormat>);
///     SmartPtr<IInputFormat> format = registry->lookupInputFormat("Orders");
///
/// A typed look-up makes a new instance by the factory bound under the name, and costs a search by name and what the
/// constructor costs. Binding belongs to start-up; look-ups may then run on many threads, if the factories allow it.
class ILookupContext : public ObjectRef {
 public:
  virtual Object* lookupComponent(const zkstring& name) = 0;  ///< as `lookup`

  /// A new instance. Throws TransformException "NormalizedObjectMappingFormat not available at <name>" when nothing is
  /// bound there, or no factory of these.
  virtual SmartPtr<INormalizedObjectMappingFormat> lookupNormalizedObjectMappingFormat(const zkstring& name) = 0;

  // The next eight: a new instance. They throw NamingException "Unable to lookup '<name>'" when nothing is bound under
  // the name, or no factory of the class asked for.
  virtual SmartPtr<IMessage> lookupMessage(const zkstring& name) = 0;
  virtual SmartPtr<IExternalMessage> lookupExternalMessage(const zkstring& name) = 0;
  virtual SmartPtr<IInternalMessage> lookupBusinessTransaction(const zkstring& name) = 0;  ///< an internal message
  virtual SmartPtr<IMessageMapping> lookupMessageMapping(const zkstring& name) = 0;
  virtual SmartPtr<IMessageFlow> lookupMessageFlow(const zkstring& name) = 0;
  virtual SmartPtr<IInternalMessage> lookupInternalMessage(const zkstring& name) = 0;
  virtual SmartPtr<IInputFormat> lookupInputFormat(const zkstring& name) = 0;
  virtual SmartPtr<IOutputFormat> lookupOutputFormat(const zkstring& name) = 0;

  /// The bound object itself, no factory and no new instance; it stays the registry's own. Throws TransformException
  /// "Device not available at <name>".
  virtual IOutputProtocol* lookupOutputProtocol(const zkstring& name) = 0;

  // The names bound to factories of the class, in the order of `zkstring` comparison. Each makes, and lets go of, one
  // object of every factory in the registry, so constructors do nothing but construct, and these are slow.
  virtual StringList getMessages() = 0;
  virtual StringList getExternalMessages() = 0;
  virtual StringList getInternalMessages() = 0;
  virtual StringList getMessageMappings() = 0;
  virtual StringList getMessageFlows() = 0;
  virtual StringList getInputFormats() = 0;
  virtual StringList getOutputFormats() = 0;
  virtual StringList getNormalizedObjectMappings() = 0;  ///< always empty

  /// Binds `object` (may be null), of which the registry takes one reference: it owns an object that is not counted.
  /// Where something is bound already, `object` loses one reference and NamingException "<name> already bound" is
  /// thrown; a name bound to null is free.
  virtual void bind(const zkstring& name, Object* object) = 0;
  virtual void rebind(const zkstring& name, Object* object) = 0;  ///< as `bind`, in place of what is there
  virtual Object* lookup(const zkstring& name) = 0;               ///< null if not bound; stays the registry's own
  virtual void unbind(const zkstring& name) = 0;                  ///< ignores unknown names
};

}  // namespace zarvik
