#include "SimpleLogger.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <map>
#include <utility>

namespace zarvik {
namespace {

using Key = std::pair<SimpleLogger*, zkstring>;
using Loggers = std::map<Key, SmartPtr<SimpleLogger>>;

Loggers& loggers() {
  static Loggers& all = *new Loggers;  // stays, for those that log at process end
  return all;
}

/// A message of `length` bytes, which may hold less: "%.*s" ends at the first byte 0, and takes a negative number for
/// no limit.
void writeLine(V_LOG_LEVEL level, const char* message, std::size_t length) {
  static constexpr const char* levelTexts[] = {"", "ERROR", "WARN", "INFO", "", "DEBUG"};
  std::printf("[%s] %.*s\n", levelTexts[level], static_cast<int>(std::min<std::size_t>(length, INT_MAX)), message);
}
}  // namespace

SimpleLogger* SimpleLogger::getLogger(SimpleLogger* parent, const zkstring& name) {
  const auto found = loggers().find(Key(parent, name));
  if (found != loggers().end()) return found->second.get();
  const zkstring ownName(name.data(), name.length());  // shares no block with the asker's text, which has its thread
  const V_LOG_LEVEL level = parent == nullptr && name.empty() ? V_LOG_INFO : V_LOG_NONE;
  const SmartPtr<SimpleLogger> logger(new SimpleLogger(ownName, parent, level));
  loggers().emplace(Key(parent, ownName), logger);
  return logger.get();
}

V_LOG_LEVEL SimpleLogger::getChainedLogLevel() {
  const SimpleLogger* logger = this;
  while (logger->logLevel == V_LOG_NONE && logger->parent != nullptr) logger = logger->parent;
  return logger->logLevel;
}

void SimpleLogger::log(V_LOG_LEVEL level, const char* message) {
  if (isLevelEnabled(level)) writeLine(level, message, std::strlen(message));
}

void SimpleLogger::log(V_LOG_LEVEL level, const zkstring& message) {
  if (isLevelEnabled(level)) writeLine(level, message.data(), message.length());
}

}  // namespace zarvik
