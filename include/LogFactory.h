#pragma once

#include "Logger.h"

namespace zarvik {

/// The way to loggers by dotted category names: "a.b.c" is the logger c below b below a below the root.
class LogFactory {
 public:
  static Logger getLog(const zkstring& name);  ///< the root for the empty name
  static Logger getLog(const char* name) { return getLog(zkstring(name)); }
  static Logger getRoot();
};

}  // namespace zarvik
