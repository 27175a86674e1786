#pragma once

#include "Object.h"
#include "SmartPtr.h"

namespace zarvik {

/// How much a logger tells: a level enables itself and every lower number.
enum V_LOG_LEVEL : int {
  V_LOG_NONE = 0,  ///< no level of its own: that of the nearest ancestor that has one
  V_LOG_ERROR = 1,
  V_LOG_WARN = 2,
  V_LOG_INFO = 3,
  V_LOG_DEBUG = 5,  ///< 4 is not used
};

/// Where messages of one category go. A host may supply its own.
class ILogger : public ObjectRef {
 public:
  virtual zkstring getCategoryName() = 0;
  virtual void info(const char* message) = 0;
  virtual void info(const zkstring& message) = 0;
  virtual void debug(const zkstring& message) = 0;
  virtual void debug(const char* message) = 0;
  virtual void warn(const zkstring& message) = 0;
  virtual void warn(const char* message) = 0;
  virtual void error(const zkstring& message) = 0;
  virtual void error(const char* message) = 0;
  virtual void setLogLevel(V_LOG_LEVEL level) = 0;
  virtual bool isLevelEnabled(V_LOG_LEVEL level) = 0;
};

/// A handle on a logger: what generated code and hosts hold and write to.
class Logger {
 public:
  Logger(ILogger* logger) : logger(logger) {}  ///< not null

  zkstring getCategoryName() const { return logger->getCategoryName(); }
  void info(const char* message) const { logger->info(message); }
  void info(const zkstring& message) const { logger->info(message); }
  void debug(const zkstring& message) const { logger->debug(message); }
  void debug(const char* message) const { logger->debug(message); }
  void trace(const zkstring& message) const { logger->debug(message); }
  void trace(const char* message) const { logger->debug(message); }
  void warn(const zkstring& message) const { logger->warn(message); }
  void warn(const char* message) const { logger->warn(message); }
  void error(const zkstring& message) const { logger->error(message); }
  void error(const char* message) const { logger->error(message); }
  void setLogLevel(V_LOG_LEVEL level) const { logger->setLogLevel(level); }
  bool isLevelEnabled(V_LOG_LEVEL level) const { return logger->isLevelEnabled(level); }

 private:
  SmartPtr<ILogger> logger;
};

}  // namespace zarvik
