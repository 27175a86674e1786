#include "TagValueOutputWriter.h"

#include <algorithm>
#include <bit>

#include "AbstractDataObject.h"
#include "ByteScan.h"
#include "TagNames.h"
#include "TagValueTimes.h"
#include "TextForms.h"

namespace zarvik {
namespace {

constexpr std::size_t tagRoom = 8;  ///< what a tag writes, whatever its size
constexpr std::size_t checkSumSize = sizeof "10=000|" - 1;

/// Copies n bytes, at least Half and at most twice as many, in two halves, which may overlap.
template <std::size_t Half>
void copyHalves(char* out, const char* from, std::size_t n) {
  char first[Half];
  char last[Half];
  std::memcpy(first, from, Half);
  std::memcpy(last, from + n - Half, Half);
  std::memcpy(out, first, Half);
  std::memcpy(out + n - Half, last, Half);
}

constexpr std::size_t longestPut = 32;
constexpr char delimiters[windowSize + 1] = "\1\1\1\1\1\1\1\1\1\1\1\1\1\1\1\1";

/// Copies a text of 1 to 32 bytes and gives the end. A call of memcpy would cost more than it saves.
inline char* put(char* out, std::string_view text) {
  const char* const from = text.data();
  const std::size_t n = text.size();
  if (n < 4) {
    out[0] = from[0];
    out[n / 2] = from[n / 2];
    out[n - 1] = from[n - 1];
  } else if (n <= 8) {
    copyHalves<4>(out, from, n);
  } else if (n <= 16) {
    copyHalves<8>(out, from, n);
  } else {
    copyHalves<16>(out, from, n);
  }
  return out + n;
}

/// Copies a text that is short as a rule, and gives the end.
inline char* copy(char* out, std::string_view text) {
  if (text.size() - 1 < longestPut) [[likely]]
    return put(out, text);
  return std::copy(text.begin(), text.end(), out);
}
}  // namespace

// Of all but the long texts each fits into the spare room of the buffer.
static_assert(FieldBuffer::spare > tagRoom + doubleTextSize && FieldBuffer::spare > tagRoom + widestTime &&
              FieldBuffer::spare > tagRoom + longestPut);

void TagValueOutputWriter::appendField0(FieldTag tag, std::string_view value) {
  if (value.size() > longestPut) [[unlikely]]
    return appendLong(tag, value);
  endField(put(tag.put(messageBuffer.next()), value));
}

// Not inline, so that the usual field need save no register. Room comes first: a text that is refused leaves no tag.
[[gnu::noinline]] void TagValueOutputWriter::appendLong(FieldTag tag, std::string_view value) {
  messageBuffer.reserve(value.size());
  endField(std::copy(value.begin(), value.end(), tag.put(messageBuffer.next())));
}

void TagValueOutputWriter::appendChar(FieldTag tag, char value) {
  char* const out = tag.put(messageBuffer.next());
  *out = value;
  endField(value != '\0' ? out + 1 : out);  // the text form of a NUL is empty
}

void TagValueOutputWriter::appendWhole(FieldTag tag, int value) {
  endField(putText(tag.put(messageBuffer.next()), value));
}

void TagValueOutputWriter::appendWhole(FieldTag tag, __int64 value) {
  endField(putText(tag.put(messageBuffer.next()), value));
}

void TagValueOutputWriter::appendDouble(FieldTag tag, double value) {
  endField(putText(tag.put(messageBuffer.next()), value));
}

void TagValueOutputWriter::appendTimestamp(FieldTag tag, const DateTime& value) {
  endField(putUTCTimestamp(tag.put(messageBuffer.next()), value));
}

void TagValueOutputWriter::appendTimeOnly(FieldTag tag, const DateTime& value) {
  endField(putUTCTimeOnly(tag.put(messageBuffer.next()), value));
}

void TagValueOutputWriter::appendDate(FieldTag tag, const DateTime& value) {
  endField(putUTCDate(tag.put(messageBuffer.next()), value));
}

std::size_t TagValueOutputWriter::firstFieldSize() const {
  const std::string_view written = messageBuffer.view();
  if (written.size() >= windowSize) {  // one look finds the end of a short field
    const unsigned int places = scan::places(written.data(), delimiters);
    if (places != 0) return static_cast<unsigned int>(std::countr_zero(places)) + 1;
  }
  return written.find(delimiter) + 1;
}

zkstring TagValueOutputWriter::finish(std::size_t head, std::string_view inserted) const {
  const std::string_view written = messageBuffer.view();
  const std::size_t size = written.size() + inserted.size() + (checksumEnabled ? checkSumSize : 0);
  zkstring text;
  char* const out = text.getBuffer(static_cast<int>(size));
  char* const inner = copy(copy(out, written.substr(0, head)), inserted);
  char* const end = std::copy(written.begin() + static_cast<std::ptrdiff_t>(head), written.end(), inner);
  if (checksumEnabled) writeCheckSum(end, out);
  text.setBufferLength(static_cast<int>(size));
  return text;
}

void TagValueOutputWriter::writeCheckSum(char* end, const char* begin) const {
  const unsigned int sum = generateCheckSum(begin, static_cast<unsigned int>(end - begin));
  const unsigned int tens = sum / 10;
  const char field[] = {'1',
                        '0',
                        '=',
                        static_cast<char>('0' + tens / 10),
                        static_cast<char>('0' + tens % 10),
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
