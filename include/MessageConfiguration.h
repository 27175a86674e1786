#pragma once

#include "Properties.h"

namespace zarvik {

class DataObject;
class MessageHeader;

/// One row of a router: which messages it takes, and the properties that it puts into the context of each.
///
/// A message fits when every condition holds. Texts are compared byte for byte, without wildcards or patterns. Format,
/// version and type left empty fit any message; a condition of `setProperty` with an empty value does not: it asks for
/// the header field to be missing or empty. Matching allocates nothing of its own.
///
///     auto* orders = new MessageConfiguration;
///     orders->setMessageFormat("FIX");
///     orders->setMessageType("D");
///     orders->setContextProperty(TransformContext::INPUT_FORMAT_PROPERTY, "FIXOrders");
///     router.addMessageConfiguration(orders);
class MessageConfiguration {
 public:
  void setMessageFormat(const zkstring& format) { messageFormat = format; }
  void setMessageVersion(const zkstring& version) { messageVersion = version; }
  void setMessageType(const zkstring& type) { messageType = type; }

  /// Asks for the header field `name` to read as `value`; a missing field reads as empty.
  void setProperty(const zkstring& name, const zkstring& value);

  /// Sets `name` to `value` in the context of each message that the row takes. "input.format" must be among them.
  void setContextProperty(const zkstring& name, const zkstring& value);
  Properties& getContextProperties() { return contextProperties; }

  bool isMatch(DataObject* message) const;    ///< `message` is not null and stays the caller's own
  bool isMatch(MessageHeader& header) const;  ///< the same for a header already at hand

 private:
  zkstring messageFormat;
  zkstring messageVersion;
  zkstring messageType;
  Properties contextProperties;
  Properties properties;
};

}  // namespace zarvik
