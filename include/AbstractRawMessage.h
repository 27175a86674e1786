#pragma once

#include <map>

#include "PropertyMapForwarder.h"
#include "RawMessage.h"

namespace zarvik {

/// What all raw messages have but the bytes. Properties cost a null pointer until the first of their operations, a
/// reading one too; attachments until one is set or asked for.
class AbstractRawMessage : public PropertyMapForwarder<AbstractRawMessage, IRawMessage> {
 public:
  using AttachmentMap = std::map<zkstring, RawMessage>;

  AbstractRawMessage() = default;
  /// Shares the maps of properties and attachments that `other` has by now, if any; has count 0.
  AbstractRawMessage(const AbstractRawMessage& other);
  AbstractRawMessage& operator=(const AbstractRawMessage&) = delete;
  ~AbstractRawMessage() override;

  float getFloatProperty(const zkstring& name, float defaultValue) override;
  void setFloatProperty(const zkstring& name, float value) override;
  using PropertyMapForwarder::getPropertyNames;
  StringList getPropertyNames(PropertyNameFilter& filter) override;

  void setName(const zkstring& text) override { name = text; }
  zkstring getName() override { return name; }
  zkstring getAsString() override { return getAsString(getEncoding()); }
  zkstring getAsString(const zkstring& encodingName) override;
  void addAttachment(const zkstring& attachmentName, RawMessage message) override;
  void removeAttachment(const zkstring& attachmentName) override;
  RawMessage getAttachment(const zkstring& attachmentName) override;
  bool hasAttachment(const zkstring& attachmentName) override;
  StringList getAttachmentNames() override;
  zkstring getEncoding() override { return encoding; }
  void setEncoding(const zkstring& label) override { encoding = label; }

  RawMessageList getAttachments();    ///< in the order of their names
  AttachmentMap& getAttachmentMap();  ///< made on first use
  void removeAllAttachments();

  /// For diagnosis: the properties, the bytes and the attachments; "ToString error" if anything throws meanwhile.
  zkstring toString() const override;

 private:
  friend class PropertyMapForwarder<AbstractRawMessage, IRawMessage>;
  /// Counted, so that a copied message may share it.
  class Attachments : public ObjectRef, public AttachmentMap {};

  IPropertyMap& store();
  const zkstring& nameOf(const zkstring& propertyName) const { return propertyName; }
  zkstring dump();

  SmartPtr<Attachments> attachments;
  zkstring encoding;
  zkstring name;
  SmartPtr<IPropertyMap> properties;
};

}  // namespace zarvik
