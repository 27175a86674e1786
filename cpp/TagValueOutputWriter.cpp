#include "TagValueOutputWriter.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

#include "AbstractDataObject.h"
#include "ByteScan.h"
#include "Conversion.h"
#include "TagNames.h"

namespace zarvik {
namespace {

constexpr std::size_t checkSumSize = sizeof "10=000|" - 1;
constexpr std::size_t largestMessage = std::numeric_limits<int>::max() / 2;

/// Copies `n` bytes, of which there are at least as many as Block has, in blocks of which the last may overlap.
template <std::size_t Block>
void copyBlocks(char* out, const char* from, std::size_t n) {
  for (std::size_t i = 0; i + Block < n; i += Block) std::memcpy(out + i, from + i, Block);
  std::memcpy(out + n - Block, from + n - Block, Block);
}

/// Copies the bytes and gives the end. Tags and most values are short: a call of memcpy would cost more than it saves.
char* put(char* out, std::string_view text) {
  const std::size_t n = text.size();
  if (n > 64) {
    std::memcpy(out, text.data(), n);
  } else if (n >= 16) {
    copyBlocks<16>(out, text.data(), n);
  } else if (n >= 8) {
    copyBlocks<8>(out, text.data(), n);
  } else if (n >= 4) {
    copyBlocks<4>(out, text.data(), n);
  } else if (n >= 2) {
    copyBlocks<2>(out, text.data(), n);
  } else if (n == 1) {
    *out = text[0];
  }
  return out + n;
}
}  // namespace

void TagValueOutputWriter::appendField(const char* tag, const char* value) {
  if (value != nullptr && *value != '\0') appendBytes(tag, value);
}

void TagValueOutputWriter::appendField(const char* tag, bool value) { appendField0(tag, boolToString(value)); }

void TagValueOutputWriter::appendBytes(std::string_view tag, std::string_view value) {
  char* out = room(tag.size() + value.size() + 2);
  char* const start = out;
  out = put(out, tag);
  *out++ = '=';
  out = put(out, value);
  *out++ = delimiter;
  used += static_cast<std::size_t>(out - start);
}

char* TagValueOutputWriter::room(std::size_t size) {
  if (messageBuffer.size() - used < size) [[unlikely]] {
    if (size > largestMessage - used) throw std::bad_array_new_length();
    messageBuffer.resize(std::max(used + size, 2 * messageBuffer.size()));
  }
  return messageBuffer.data() + used;
}

std::size_t TagValueOutputWriter::firstFieldSize() const {
  if (used == 0) return 0;
  const char* const start = messageBuffer.data();
  const void* const end = std::memchr(start, delimiter, used);
  return end == nullptr ? 0 : static_cast<std::size_t>(static_cast<const char*>(end) - start) + 1;
}

zkstring TagValueOutputWriter::finish(std::size_t head, std::string_view inserted) const {
  const std::size_t size = used + inserted.size() + (checksumEnabled ? checkSumSize : 0);
  zkstring message;
  char* const begin = message.getBuffer(static_cast<int>(size));
  char* out = begin;
  const std::string_view written(messageBuffer.data(), used);
  for (const std::string_view part : {written.substr(0, head), inserted, written.substr(head)}) out = put(out, part);
  if (checksumEnabled) writeCheckSum(out, begin);
  message.setBufferLength(static_cast<int>(size));
  return message;
}

void TagValueOutputWriter::writeCheckSum(char* end, const char* message) const {
  const unsigned int sum = generateCheckSum(message, static_cast<unsigned int>(end - message));
  const char field[] = {'1',
                        '0',
                        '=',
                        static_cast<char>('0' + sum / 100),
                        static_cast<char>('0' + sum / 10 % 10),
                        static_cast<char>('0' + sum % 10),
                        delimiter};
  static_assert(sizeof field == checkSumSize);
  std::memcpy(end, field, sizeof field);
}

unsigned char TagValueOutputWriter::generateCheckSum(const char* bytes, unsigned int length) {
  return scan::sum(bytes, length);
}

zkstring TagValueOutputWriter::requiredFieldText(const AbstractDataObject& object, int fieldIndex, int tag) {
  return object.getFieldName(fieldIndex) + " is a mandatory field. Tag " + quotedTag(object, fieldIndex, tag) +
         " cannot be null.";
}

}  // namespace zarvik
