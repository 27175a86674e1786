#pragma once

#include <map>

#include "SmartPtr.h"
#include "zkstring.h"

namespace zarvik {

/// Objects by name, in the order of `zkstring` comparison. The map holds one reference on each value, and is the sole
/// owner of one that is not counted. A null value is an entry of its own.
///
/// Names share the block of the text given. Looking up costs comparisons of about the logarithm of the size; no
/// operation but `put` of a new name allocates.
template <class T>
class ObjectPtrMap {
 public:
  using const_iterator = typename std::map<zkstring, SmartPtr<T>>::const_iterator;

  ObjectPtrMap() = default;
  ObjectPtrMap(const ObjectPtrMap&) = delete;  // values that are not counted have one owner
  ObjectPtrMap& operator=(const ObjectPtrMap&) = delete;

  /// In place of the value that is there, which loses its reference before `value` gains one: an object on which the
  /// map holds the only reference is not put again.
  void put(const zkstring& name, T* value) { values[name] = value; }
  void remove(const zkstring& name) { values.erase(name); }  ///< ignores unknown names

  /// The value, which stays the map's own; null also for an unknown name.
  T* get(const zkstring& name) const {
    const const_iterator entry = values.find(name);
    return entry != values.end() ? entry->second.get() : nullptr;
  }

  const_iterator begin() const { return values.begin(); }
  const_iterator end() const { return values.end(); }

 private:
  std::map<zkstring, SmartPtr<T>> values;
};

}  // namespace zarvik
