#pragma once

#include "Logger.h"

namespace zarvik {

/// The categories of generated code, and their loggers.
class LoggingConstants {
 public:
  static const zkstringliteral ROOT_CATEGORY;
  static const zkstringliteral MESSAGE_FLOW_CATEGORY;
  static const zkstringliteral MESSAGE_CATEGORY;
  static const zkstringliteral MAPPING_CATEGORY;

  static Logger getRuntimeLog();  ///< of ROOT_CATEGORY
  // Of the category `name` below the one that the function names.
  static Logger getMessageFlowLog(const zkstring& name);
  static Logger getMessageLog(const zkstring& name);
  static Logger getMappingLog(const zkstring& name);
};

}  // namespace zarvik
