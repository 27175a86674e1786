#include "MessageConfiguration.h"

#include <algorithm>

#include "MessageHeaderAdapter.h"

namespace zarvik {

void MessageConfiguration::setProperty(const zkstring& name, const zkstring& value) {
  properties.insert_or_assign(name, value);
}

void MessageConfiguration::setContextProperty(const zkstring& name, const zkstring& value) {
  contextProperties.insert_or_assign(name, value);
}

bool MessageConfiguration::isMatch(DataObject* message) const {
  MessageHeaderAdapter header(message, false);
  return isMatch(header);
}

bool MessageConfiguration::isMatch(MessageHeader& header) const {
  // A condition left open does not read its field.
  return (messageFormat.empty() || messageFormat == header.getMessageFormat()) &&
         (messageVersion.empty() || messageVersion == header.getMessageVersion()) &&
         (messageType.empty() || messageType == header.getMessageType()) &&
         std::all_of(properties.begin(), properties.end(), [&header](const Properties::value_type& condition) {
           return header.getHeaderField(condition.first) == condition.second;
         });
}

}  // namespace zarvik
