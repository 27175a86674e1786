#include "MessageHeaderAdapter.h"

#include "DataObject.h"
#include "DataObjectMetaInfo.h"
#include "SmartPtr.h"

namespace zarvik {
namespace {

constinit const zkstringliteral messageFormat("MessageFormat");
constinit const zkstringliteral messageType("MessageType");
constinit const zkstringliteral messageVersion("MessageVersion");
}  // namespace

MessageHeaderAdapter::~MessageHeaderAdapter() {
  if (owner) delete message;
}

zkstring MessageHeaderAdapter::getMessageFormat() { return getHeaderField(messageFormat); }

zkstring MessageHeaderAdapter::getMessageType() { return getHeaderField(messageType); }

zkstring MessageHeaderAdapter::getMessageVersion() { return getHeaderField(messageVersion); }

zkstring MessageHeaderAdapter::getHeaderField(const zkstring& name) {
  const int index = message->getMetaInfo()->getFieldIndexIfExists(name);
  if (index < 0) return {};
  const SmartPtr<Object> field(message->getField(index));
  return field.isNull() ? zkstring() : field->toString();
}

}  // namespace zarvik
