#pragma once

#include "AbstractSimpleOutputWriter.h"
#include "FieldBuffer.h"

namespace zarvik {

class AbstractDataObject;
class DateTime;

/// The base of the writers of tag=value formats: fields in the order in which they are appended. A format adds
/// `endMessage`, which puts in the fields that depend on the others, with `finish`.
///
/// The buffer is the writer's own and is kept from message to message. A field of constant tag costs some thirty
/// instructions, and a message one allocation: that of the text that it gives.
class TagValueOutputWriter : public AbstractSimpleOutputWriter {
 public:
  void initMessage() override { messageBuffer.clear(); }

  void setChecksum(bool enabled) { checksumEnabled = enabled; }  ///< whether messages end with tag 10; true by default

  Object* writeBatchStart() { return nullptr; }
  Object* writeBatchEnd() { return nullptr; }
  Object* writeBodyStart() { return nullptr; }
  Object* writeBodyEnd() { return nullptr; }

 protected:
  static constexpr char delimiter = '\x01';  ///< ends every field

  TagValueOutputWriter() = default;

  // A field: the tag, '=', the text form of the value, the delimiter. An empty text writes nothing, not even the tag.
  void appendField(const char* tag, const zkstring& value) { appendText(tag, {value.data(), value.length()}); }
  void appendField(const char* tag, const char* value) {
    if (value != nullptr) appendText(tag, value);
  }
  void appendField(const char* tag, char value) { appendChar(fieldTag(tag), value); }
  void appendField(const char* tag, int value) { appendWhole(fieldTag(tag), value); }
  void appendField(const char* tag, __int64 value) { appendWhole(fieldTag(tag), value); }
  void appendField(const char* tag, float value) { appendDouble(fieldTag(tag), value); }
  void appendField(const char* tag, double value) { appendDouble(fieldTag(tag), value); }
  void appendField(const char* tag, bool value) { appendText(tag, value ? "true" : "false"); }

  // A date or a time, in the text form that TagValueType tells of; those of the local market are the same.
  void appendUTCTimestamp(const char* tag, const DateTime& value) { appendTimestamp(fieldTag(tag), value); }
  void appendUTCTimeOnly(const char* tag, const DateTime& value) { appendTimeOnly(fieldTag(tag), value); }
  void appendUTCDate(const char* tag, const DateTime& value) { appendDate(fieldTag(tag), value); }

  const FieldBuffer& message() const { return messageBuffer; }
  std::size_t firstFieldSize() const;  ///< in bytes, with its delimiter; 0 while there is none
  void reserve(std::size_t size) { messageBuffer.reserve(size); }  ///< bytes that the buffer has in advance

  /// The message with `inserted` behind its first `head` bytes, and with the checksum if that is enabled. The buffer
  /// stays as it is.
  zkstring finish(std::size_t head, std::string_view inserted) const;

  /// "<name> is a mandatory field. Tag '<name>[<tag>]' cannot be null."
  static zkstring requiredFieldText(const AbstractDataObject& object, int fieldIndex, int tag);

 private:
  /// Of a tag that is too long for a word the front is written at once.
  FieldTag fieldTag(const char* tag) {
    std::size_t length = std::strlen(tag);
    if (length > FieldTag::longest) {
      messageBuffer.append({tag, length - FieldTag::longest});
      tag += length - FieldTag::longest;
      length = FieldTag::longest;
    }
    return FieldTag(tag, length);
  }
  void appendText(const char* tag, std::string_view value) {
    if (!value.empty()) [[likely]]
      appendField0(fieldTag(tag), value);
  }
  void appendField0(FieldTag tag, std::string_view value);
  void appendLong(FieldTag tag, std::string_view value);
  void endField(char* end) {
    *end = delimiter;
    messageBuffer.setNext(end + 1);
  }
  void appendChar(FieldTag tag, char value);
  void appendWhole(FieldTag tag, int value);
  void appendWhole(FieldTag tag, __int64 value);
  void appendDouble(FieldTag tag, double value);
  void appendTimestamp(FieldTag tag, const DateTime& value);
  void appendTimeOnly(FieldTag tag, const DateTime& value);
  void appendDate(FieldTag tag, const DateTime& value);
  void writeCheckSum(char* end, const char* begin) const;
  static unsigned char generateCheckSum(const char* bytes, unsigned int length);

  bool checksumEnabled = true;
  FieldBuffer messageBuffer;
};

}  // namespace zarvik
