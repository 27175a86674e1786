#pragma once

#include <map>

#include "ResourceBundle.h"

namespace zarvik {

/// The resource bundles of the process by name. Two are there from the first look-up on, whoever makes it and however
/// early: the catalogues of errors, "RuntimeResources" (keys "SRT...") and "UniversalResources" (keys "UNV...").
///
/// Each catalogue entry has two keys, such as "SRT100.code" and "SRT100.message". Look-ups may run in parallel;
/// adding belongs to start-up.
class Resources {
 public:
  static Resources& getDefaultResources();

  /// `bundle` stays the caller's and outlives the process's last look-up. A name that is there keeps its first bundle.
  void addResourceBundle(const zkstring& name, const ResourceBundle& bundle);
  const ResourceBundle* getBundle(const zkstring& name) const;  ///< null for an unknown name

  /// The first value that is not empty, the bundles being asked in the order of their names; empty without one.
  static zkstring getProperty(const zkstring& key);
  static zkstring getProperty(const char* key) { return getProperty(zkstring(key)); }
  /// The value in that bundle alone; empty for an unknown bundle or key.
  static zkstring getProperty(const char* bundleName, const char* key);

 private:
  std::map<zkstring, const ResourceBundle*> bundles;
};

}  // namespace zarvik
