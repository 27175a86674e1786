#pragma once

#include <utility>

#include "ArrayList.h"
#include "Object.h"
#include "SmartPtr.h"
#include "zkstring.h"

namespace zarvik {

/// A map from a text to a counted object, searched from front to back: for a handful of keys.
///
/// Keys are unique and stand in the order of first insertion. The map holds one count on each value, which may be
/// null. Copying and assigning alias one list of entries (see ArrayList): the values go with the last map that uses
/// it.
class SmallStringMap {
 public:
  void put(const zkstring& key, ObjectRef* value);  ///< in place of the value that is there; shares the key's block
  ObjectRef* get(const zkstring& key) const;        ///< the map's own; null if there is none

 private:
  using Entry = std::pair<zkstring, SmartPtr<ObjectRef>>;

  Entry* find(const zkstring& key) const;

  ArrayList<Entry> entries;
};

}  // namespace zarvik
