#pragma once

#include "Logger.h"

namespace zarvik {

/// A logger in a tree of categories that writes lines such as "[INFO] text" to standard output, unflushed.
///
/// A message ends at its first byte 0. A message of a level that is not enabled costs a walk up the tree and allocates
/// nothing.
class SimpleLogger : public ILogger {
 public:
  /// The process's one logger of that parent (null for the root) and name, made on first use; it stays the process's
  /// own, and lives until its end. A new root has the level INFO, all others inherit. One thread at a time.
  static SimpleLogger* getLogger(SimpleLogger* parent, const zkstring& name);

  /// `name` is the last segment of the category; `parent` may be null and outlives this logger.
  SimpleLogger(const zkstring& name, SimpleLogger* parent, V_LOG_LEVEL level)
      : logLevel(level), categoryName(name), parent(parent) {}
  SimpleLogger(const zkstring& name, SimpleLogger* parent) : SimpleLogger(name, parent, V_LOG_NONE) {}
  SimpleLogger(const zkstring& name) : SimpleLogger(name, nullptr) {}

  zkstring getCategoryName() override { return categoryName; }
  void info(const char* message) override { log(V_LOG_INFO, message); }
  void info(const zkstring& message) override { log(V_LOG_INFO, message); }
  void debug(const zkstring& message) override { log(V_LOG_DEBUG, message); }
  void debug(const char* message) override { log(V_LOG_DEBUG, message); }
  void warn(const zkstring& message) override { log(V_LOG_WARN, message); }
  void warn(const char* message) override { log(V_LOG_WARN, message); }
  void error(const zkstring& message) override { log(V_LOG_ERROR, message); }
  void error(const char* message) override { log(V_LOG_ERROR, message); }
  void setLogLevel(V_LOG_LEVEL level) override { logLevel = level; }
  bool isLevelEnabled(V_LOG_LEVEL level) override { return getChainedLogLevel() >= level; }

  V_LOG_LEVEL getChainedLogLevel();  ///< the first level of its own on the way up; NONE without one

 private:
  void log(V_LOG_LEVEL level, const char* message);
  void log(V_LOG_LEVEL level, const zkstring& message);

  V_LOG_LEVEL logLevel;
  zkstring categoryName;
  SimpleLogger* parent;
};

}  // namespace zarvik
