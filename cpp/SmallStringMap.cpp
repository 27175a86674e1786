#include "SmallStringMap.h"

namespace zarvik {

void SmallStringMap::put(const zkstring& key, ObjectRef* value) {
  SmartPtr<ObjectRef> held(value);  // before the old value goes: they may be the same
  if (Entry* const entry = find(key)) {
    entry->second = std::move(held);
  } else {
    entries.push_back(Entry(key, held));
  }
}

ObjectRef* SmallStringMap::get(const zkstring& key) const {
  const Entry* const entry = find(key);
  return entry != nullptr ? entry->second.get() : nullptr;
}

SmallStringMap::Entry* SmallStringMap::find(const zkstring& key) const {
  for (unsigned int i = 0; i < entries.size(); ++i) {
    if (entries.at(i).first == key) return &entries.at(i);
  }
  return nullptr;
}

}  // namespace zarvik
