#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "AbstractSimpleOutputWriter.h"

namespace zarvik {

class AbstractDataObject;

/// The base of the writers of tag=value formats: fields in the order in which they are appended. A format adds
/// `endMessage`, which puts in the fields that depend on the others, with `finish`.
///
/// The buffer is the writer's own and is kept from message to message, so that a field costs its bytes, and a message
/// one allocation: that of the text that it gives.
class TagValueOutputWriter : public AbstractSimpleOutputWriter {
 public:
  void initMessage() override { used = 0; }

  void setChecksum(bool enabled) { checksumEnabled = enabled; }  ///< whether messages end with tag 10; true by default

  Object* writeBatchStart() { return nullptr; }
  Object* writeBatchEnd() { return nullptr; }
  Object* writeBodyStart() { return nullptr; }
  Object* writeBodyEnd() { return nullptr; }

 protected:
  static constexpr char delimiter = '\x01';  ///< ends every field

  TagValueOutputWriter() = default;
  // Copies alone: a writer that is moved from goes on as before.
  TagValueOutputWriter(const TagValueOutputWriter& other) = default;
  TagValueOutputWriter& operator=(const TagValueOutputWriter& other) = default;

  // A field: the tag, '=', the text form of the value, the delimiter. An empty text writes nothing, not even the tag.
  void appendField(const char* tag, const zkstring& value) {
    if (!value.empty()) appendField0(tag, value);
  }
  void appendField(const char* tag, const char* value);
  void appendField(const char* tag, char value) { appendNumber(tag, value); }
  void appendField(const char* tag, int value) { appendNumber(tag, value); }
  void appendField(const char* tag, __int64 value) { appendNumber(tag, value); }
  void appendField(const char* tag, float value) { appendNumber(tag, value); }
  void appendField(const char* tag, double value) { appendNumber(tag, value); }
  void appendField(const char* tag, bool value);  ///< "true" or "false"

  /// The bytes of the first field and its delimiter; 0 while there is none.
  std::size_t firstFieldSize() const;
  std::size_t messageSize() const { return used; }
  void reserve(std::size_t size) { room(size); }  ///< bytes that the buffer has in advance

  /// The message with `inserted` behind its first `head` bytes, and with the checksum if that is enabled. The buffer
  /// stays as it is.
  zkstring finish(std::size_t head, std::string_view inserted) const;

  /// "<name> is a mandatory field. Tag '<name>[<tag>]' cannot be null."
  static zkstring requiredFieldText(const AbstractDataObject& object, int fieldIndex, int tag);

 private:
  template <class T>
  void appendNumber(const char* tag, T value) {
    scratch.assign(value);
    appendField0(tag, scratch);
  }
  void appendField0(std::string_view tag, const zkstring& value) { appendBytes(tag, {value.data(), value.length()}); }
  void appendBytes(std::string_view tag, std::string_view value);
  char* room(std::size_t size);
  void writeCheckSum(char* end, const char* message) const;
  static unsigned char generateCheckSum(const char* bytes, unsigned int length);

  bool checksumEnabled = true;
  std::vector<char> messageBuffer;  ///< all of it is room; what is in use is the message
  std::size_t used = 0;
  zkstring scratch;  ///< of the texts of numbers, so that its block serves again
};

}  // namespace zarvik
