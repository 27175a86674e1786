#include "LoggingConstants.h"

#include "LogFactory.h"

namespace zarvik {
namespace {

Logger logBelow(const zkstring& category, const zkstring& name) { return LogFactory::getLog(category + "." + name); }
}  // namespace

constinit const zkstringliteral LoggingConstants::ROOT_CATEGORY("zarvik.runtime");
constinit const zkstringliteral LoggingConstants::MESSAGE_FLOW_CATEGORY("zarvik.runtime.messageflow");
constinit const zkstringliteral LoggingConstants::MESSAGE_CATEGORY("zarvik.runtime.message");
constinit const zkstringliteral LoggingConstants::MAPPING_CATEGORY("zarvik.runtime.mapping");

Logger LoggingConstants::getRuntimeLog() { return LogFactory::getLog(ROOT_CATEGORY); }
Logger LoggingConstants::getMessageFlowLog(const zkstring& name) { return logBelow(MESSAGE_FLOW_CATEGORY, name); }
Logger LoggingConstants::getMessageLog(const zkstring& name) { return logBelow(MESSAGE_CATEGORY, name); }
Logger LoggingConstants::getMappingLog(const zkstring& name) { return logBelow(MAPPING_CATEGORY, name); }

}  // namespace zarvik
