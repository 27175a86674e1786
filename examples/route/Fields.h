#pragma once

#include <string>
#include <string_view>

namespace route {

/// Cuts a FIX message, whose fields end in byte 1, into tags and values.
///
/// A data field behind its length field (such as RawData) may hold any bytes, the field end included.
class Fields {
 public:
  explicit Fields(std::string_view message) : rest(message) {}

  /// Goes to the next field; false at the end. Throws zarvik::FieldParsingException for a field that is none.
  bool next();

  int getTag() const { return tag; }
  std::string_view getValue() const { return value; }

 private:
  [[noreturn]] void refuse(const char* why) const;

  std::string_view rest;
  std::string_view value;
  int tag = 0;
  int number = 0;  ///< of the field in the message, from 1
};

}  // namespace route
