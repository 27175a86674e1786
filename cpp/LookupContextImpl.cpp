#include "LookupContextImpl.h"

#include <map>

#include "Exceptions.h"
#include "IInputFormat.h"
#include "ObjectFactory.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/LookupContextImpl";
constexpr char lookupSource[] = ".\\include\\LookupContextImpl";

using Registry = std::map<zkstring, SmartPtr<Object>>;

/// Made on first use, so that the initialisers of any module may bind in any order.
Registry& registry() {
  static Registry bindings;
  return bindings;
}

/// A new instance of what is bound under `name`; one of another class than asked for is released before the throw.
template <class T>
SmartPtr<T> newInstanceOf(ILookupContext& context, const zkstring& name) {
  if (auto* const factory = dynamic_cast<ObjectFactory*>(context.lookup(name))) {
    const SmartPtr<Object> instance(factory->newInstance());
    if (auto* const wanted = dynamic_cast<T*>(instance.get())) return SmartPtr<T>(wanted);
  }
  throwFrom(lookupSource, NamingException("Unable to lookup '" + name + "'"));
}
}  // namespace

SmartPtr<IInputFormat> LookupContextImpl::lookupInputFormat(const zkstring& name) {
  return newInstanceOf<IInputFormat>(*this, name);
}

void LookupContextImpl::bind(const zkstring& name, Object* object) {
  if (lookup(name) != nullptr) {
    ObjectRef::releaseRef(object);
    throwFrom(here, NamingException(name + " already bound"));
  }
  rebind(name, object);
}

void LookupContextImpl::rebind(const zkstring& name, Object* object) {
  unbind(name);
  registry()[name] = object;
}

Object* LookupContextImpl::lookup(const zkstring& name) {
  const auto entry = registry().find(name);
  return entry != registry().end() ? entry->second.get() : nullptr;
}

void LookupContextImpl::unbind(const zkstring& name) { registry().erase(name); }

}  // namespace zarvik
