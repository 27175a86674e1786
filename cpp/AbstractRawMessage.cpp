#include "AbstractRawMessage.h"

#include "ByteArrayInputSource.h"
#include "PropertyMapImpl.h"
#include "StringInputSource.h"
#include "zkstringbuffer.h"

namespace zarvik {

constinit const zkstringliteral IRawMessage::CORRELATION_ID_PROPERTY("correlationId");
constinit const zkstringliteral IRawMessage::REPLY_TO_PROPERTY("replyTo");
constinit const zkstringliteral IRawMessage::CORRELATION_GROUP_SIZE_PROPERTY("");
constinit const zkstringliteral IRawMessage::CORRELATION_SEQUENCE_PROPERTY("");

Binary InputSource::getAsBinary() {
  int length = 0;
  const char* const bytes = getAsBytes(length);
  zkstring copy(bytes, static_cast<unsigned int>(length));
  copy.c_str();  // writes the NUL
  return Binary(std::move(copy));
}

// NOLINTNEXTLINE(bugprone-copy-constructor-init): the copy has no owner yet
AbstractRawMessage::AbstractRawMessage(const AbstractRawMessage& other)
    : Object(),
      PropertyMapForwarder(),
      attachments(other.attachments),
      encoding(other.encoding),
      name(other.name),
      properties(other.properties) {}

AbstractRawMessage::~AbstractRawMessage() = default;

float AbstractRawMessage::getFloatProperty(const zkstring& propertyName, float defaultValue) {
  return store().getFloatProperty(propertyName, defaultValue);
}

void AbstractRawMessage::setFloatProperty(const zkstring& propertyName, float value) {
  store().setFloatProperty(propertyName, value);
}

StringList AbstractRawMessage::getPropertyNames(PropertyNameFilter& filter) { return store().getPropertyNames(filter); }

zkstring AbstractRawMessage::getAsString(const zkstring& /*encodingName*/) {
  int length = 0;
  const char* const bytes = getAsBytes(length);
  return zkstring(bytes, static_cast<unsigned int>(length));
}

void AbstractRawMessage::addAttachment(const zkstring& attachmentName, RawMessage message) {
  getAttachmentMap()[attachmentName] = std::move(message);
}

void AbstractRawMessage::removeAttachment(const zkstring& attachmentName) {
  if (!attachments.isNull()) attachments->erase(attachmentName);
}

RawMessage AbstractRawMessage::getAttachment(const zkstring& attachmentName) {
  return getAttachmentMap()[attachmentName];
}

bool AbstractRawMessage::hasAttachment(const zkstring& attachmentName) {
  return !attachments.isNull() && attachments->find(attachmentName) != attachments->end();
}

StringList AbstractRawMessage::getAttachmentNames() {
  StringList names;
  if (!attachments.isNull()) {
    for (const auto& attachment : *attachments) names.add(attachment.first);
  }
  return names;
}

RawMessageList AbstractRawMessage::getAttachments() {
  RawMessageList messages;
  if (!attachments.isNull()) {
    for (const auto& attachment : *attachments) messages.add(attachment.second);
  }
  return messages;
}

AbstractRawMessage::AttachmentMap& AbstractRawMessage::getAttachmentMap() {
  if (attachments.isNull()) attachments = new Attachments;
  return *attachments;
}

void AbstractRawMessage::removeAllAttachments() {
  if (!attachments.isNull()) attachments->clear();
}

zkstring AbstractRawMessage::toString() const {
  try {
    return const_cast<AbstractRawMessage*>(this)->dump();  // the getters of the interface are not const
  } catch (...) {
    return zkstringliteral("ToString error");
  }
}

zkstring AbstractRawMessage::dump() {
  zkstringbuffer text;
  if (!properties.isNull()) {
    for (const zkstring& propertyName : properties->getPropertyNames()) {
      text.append(propertyName).append(':').append(properties->getProperty(propertyName)->toString()).append('\n');
    }
  }
  text.append(getAsString());
  if (attachments.isNull()) return text;
  text.append('\n');
  for (const auto& [attachmentName, message] : *attachments) {
    text.append("-----=").append(attachmentName).append('\n');
    if (!message.isNull()) text.append(message->toString());
  }
  return text;
}

IPropertyMap& AbstractRawMessage::store() {
  if (properties.isNull()) properties = new PropertyMapImpl;
  return *properties;
}

const char* StringInputSource::getAsBytes(int& length) {
  length = static_cast<int>(text.length());
  return text.data();
}

ByteArrayInputSource::ByteArrayInputSource(const char* block, int length, bool owned)
    : bytes(block, static_cast<unsigned int>(length), owned), ownsBytes(owned) {}

ByteArrayInputSource::ByteArrayInputSource(const ByteArrayInputSource& other)
    : Object(),
      AbstractRawMessage(other),
      bytes(other.ownsBytes ? Binary(other.bytes.data(), other.bytes.length()) : other.bytes) {}

ByteArrayInputSource::~ByteArrayInputSource() {
  if (ownsBytes) delete[] bytes.data();
}

const char* ByteArrayInputSource::getAsBytes(int& length) {
  length = static_cast<int>(bytes.length());
  return bytes.data();
}

}  // namespace zarvik
