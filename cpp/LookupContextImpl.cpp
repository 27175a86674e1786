#include "LookupContextImpl.h"

#include "Exceptions.h"
#include "ObjectFactory.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/LookupContextImpl";
constexpr char lookupSource[] = ".\\include\\LookupContextImpl";

/// A new T from `bound`; null if that is no factory, or one of another class, whose instance is gone by then.
template <class T>
SmartPtr<T> newInstanceOf(Object* bound) {
  auto* const factory = dynamic_cast<ObjectFactory*>(bound);
  if (factory == nullptr) return {};
  const SmartPtr<Object> instance(factory->newInstance());
  return SmartPtr<T>(dynamic_cast<T*>(instance.get()));
}

template <class T>
SmartPtr<T> lookupOf(ILookupContext& context, const zkstring& name) {
  SmartPtr<T> instance = newInstanceOf<T>(context.lookup(name));
  if (instance.isNull()) throwFrom(lookupSource, NamingException("Unable to lookup '" + name + "'"));
  return instance;
}

/// The names in `bindings` under which factories of T stand.
template <class T>
StringList namesOf(const ObjectPtrMap<Object>& bindings) {
  StringList names;
  for (const auto& [name, bound] : bindings) {
    // A copy of the characters: a shared block would have its count changed by every thread that asks.
    if (!newInstanceOf<T>(bound.get()).isNull()) names.add(zkstring(name.data(), name.length()));
  }
  return names;
}

/// Takes one reference from `object` (may be null); one that nobody has counted yet goes, as an uncounted one does.
void giveUp(Object* object) {
  const auto* const counted = dynamic_cast<ObjectRef*>(object);
  if (counted != nullptr && counted->getRefCount() == 0) object->addRef();
  ObjectRef::releaseRef(object);
}
}  // namespace

/// Made on first use, so that the initialisers of any module may bind in any order.
ObjectPtrMap<Object>& LookupContextImpl::getLookupContextList() {
  static ObjectPtrMap<Object> bindings;
  return bindings;
}

Object* LookupContextImpl::lookupComponent(const zkstring& name) { return lookup(name); }

SmartPtr<INormalizedObjectMappingFormat> LookupContextImpl::lookupNormalizedObjectMappingFormat(const zkstring& name) {
  SmartPtr<INormalizedObjectMappingFormat> format = newInstanceOf<INormalizedObjectMappingFormat>(lookup(name));
  if (format.isNull()) {
    throwFrom(here, TransformException("NormalizedObjectMappingFormat not available at " + name));
  }
  return format;
}

SmartPtr<IMessage> LookupContextImpl::lookupMessage(const zkstring& name) { return lookupOf<IMessage>(*this, name); }

SmartPtr<IExternalMessage> LookupContextImpl::lookupExternalMessage(const zkstring& name) {
  return lookupOf<IExternalMessage>(*this, name);
}

SmartPtr<IInternalMessage> LookupContextImpl::lookupBusinessTransaction(const zkstring& name) {
  return lookupOf<IInternalMessage>(*this, name);
}

SmartPtr<IMessageMapping> LookupContextImpl::lookupMessageMapping(const zkstring& name) {
  return lookupOf<IMessageMapping>(*this, name);
}

SmartPtr<IMessageFlow> LookupContextImpl::lookupMessageFlow(const zkstring& name) {
  return lookupOf<IMessageFlow>(*this, name);
}

SmartPtr<IInternalMessage> LookupContextImpl::lookupInternalMessage(const zkstring& name) {
  return lookupOf<IInternalMessage>(*this, name);
}

SmartPtr<IInputFormat> LookupContextImpl::lookupInputFormat(const zkstring& name) {
  return lookupOf<IInputFormat>(*this, name);
}

SmartPtr<IOutputFormat> LookupContextImpl::lookupOutputFormat(const zkstring& name) {
  return lookupOf<IOutputFormat>(*this, name);
}

IOutputProtocol* LookupContextImpl::lookupOutputProtocol(const zkstring& name) {
  if (auto* const protocol = dynamic_cast<IOutputProtocol*>(lookup(name))) return protocol;
  throwFrom(here, TransformException("Device not available at " + name));
}

StringList LookupContextImpl::getMessages() { return namesOf<IMessage>(getLookupContextList()); }

StringList LookupContextImpl::getExternalMessages() { return namesOf<IExternalMessage>(getLookupContextList()); }

StringList LookupContextImpl::getInternalMessages() { return namesOf<IInternalMessage>(getLookupContextList()); }

StringList LookupContextImpl::getMessageMappings() { return namesOf<IMessageMapping>(getLookupContextList()); }

StringList LookupContextImpl::getMessageFlows() { return namesOf<IMessageFlow>(getLookupContextList()); }

StringList LookupContextImpl::getInputFormats() { return namesOf<IInputFormat>(getLookupContextList()); }

StringList LookupContextImpl::getOutputFormats() { return namesOf<IOutputFormat>(getLookupContextList()); }

StringList LookupContextImpl::getNormalizedObjectMappings() { return {}; }

void LookupContextImpl::bind(const zkstring& name, Object* object) {
  if (lookup(name) != nullptr) {
    giveUp(object);
    throwFrom(here, NamingException(name + " already bound"));
  }
  rebind(name, object);
}

void LookupContextImpl::rebind(const zkstring& name, Object* object) { getLookupContextList().put(name, object); }

Object* LookupContextImpl::lookup(const zkstring& name) { return getLookupContextList().get(name); }

void LookupContextImpl::unbind(const zkstring& name) { getLookupContextList().remove(name); }

}  // namespace zarvik
