#pragma once

#include "RawMessage.h"

namespace zarvik {

/// The functions of formulas on properties, for one kind of handle: a raw message, or a property map itself.
///
/// They forward to the map and behave as IPropertyMap tells. A null handle is TransformNullValueException
/// "Null value".
template <class Handle>
class PropertyFunctions {
 public:
  static bool hasProperty(const Handle& map, const zkstring& name);
  static zkstring getProperty(const Handle& map, const zkstring& name);  ///< empty for a missing name
  static zkstring getProperty(const Handle& map, const zkstring& name, const zkstring& defaultValue);
  static zkstring getProperty(const Handle& map, const zkstring& name, const char* defaultValue);
  static int getProperty(const Handle& map, const zkstring& name, int defaultValue);
  static __int64 getProperty(const Handle& map, const zkstring& name, __int64 defaultValue);
  static float getProperty(const Handle& map, const zkstring& name, float defaultValue);
  static double getProperty(const Handle& map, const zkstring& name, double defaultValue);
  static bool getProperty(const Handle& map, const zkstring& name, bool defaultValue);
  static DateTime getProperty(const Handle& map, const zkstring& name, const DateTime& defaultValue);
  static void setProperty(const Handle& map, const zkstring& name, const zkstring& value);
  static void setProperty(const Handle& map, const zkstring& name, const char* value);
  static void setProperty(const Handle& map, const zkstring& name, int value);
  static void setProperty(const Handle& map, const zkstring& name, __int64 value);
  static void setProperty(const Handle& map, const zkstring& name, float value);
  static void setProperty(const Handle& map, const zkstring& name, double value);
  static void setProperty(const Handle& map, const zkstring& name, bool value);
  static void setProperty(const Handle& map, const zkstring& name, const DateTime& value);
  static void removeProperty(const Handle& map, const zkstring& name);
  static void clearProperties(const Handle& map);
  static int getPropertyCount(const Handle& map);
  static StringList getPropertyNames(const Handle& map);
  static StringList getPropertyNames(const Handle& map, const zkstring& pattern);  ///< as WildcardFilter matches
  static SmartPtr<IPropertyMap> getProperties(const Handle& map, const zkstring& prefix);
  static void putProperties(const Handle& target, const Handle& source);
};

/// The functions of formulas on raw messages.
class MessageFunctions : public PropertyFunctions<RawMessage>, public PropertyFunctions<SmartPtr<IPropertyMap>> {
  using OfMessage = PropertyFunctions<RawMessage>;
  using OfMap = PropertyFunctions<SmartPtr<IPropertyMap>>;

 public:
  static RawMessage toRawMessage(const Binary& bytes);   ///< shares the bytes
  static RawMessage toRawMessage(const zkstring& text);  ///< shares the text
  static RawMessage toRawMessage(const char* text);
  static Binary toBinary(const RawMessage& message);
  static zkstring toText(const RawMessage& message);
  static zkstring getName(const RawMessage& message);
  static void setName(const RawMessage& message, const zkstring& name);
  static RawMessage getAttachment(const RawMessage& message, const zkstring& name);  ///< null if there is none
  static void setAttachment(const RawMessage& message, const zkstring& name, const RawMessage& attachment);
  static bool hasAttachment(const RawMessage& message, const zkstring& name);
  static RawMessageList getAttachments(const RawMessage& message);  ///< in the order of their names
  static StringList getAttachmentNames(const RawMessage& message);

  using OfMap::clearProperties;
  using OfMap::getProperties;
  using OfMap::getProperty;
  using OfMap::getPropertyCount;
  using OfMap::getPropertyNames;
  using OfMap::hasProperty;
  using OfMap::putProperties;
  using OfMap::removeProperty;
  using OfMap::setProperty;
  using OfMessage::clearProperties;
  using OfMessage::getProperties;
  using OfMessage::getProperty;
  using OfMessage::getPropertyCount;
  using OfMessage::getPropertyNames;
  using OfMessage::hasProperty;
  using OfMessage::putProperties;
  using OfMessage::removeProperty;
  using OfMessage::setProperty;
};

}  // namespace zarvik
