#include "formula/ConcatFunctions.h"

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "Conversion.h"
#include "date/DateTime.h"

namespace zarvik {
namespace {

/// Appends what `write` writes into memory of `room` bytes, by way of the stack.
template <unsigned int room, class T>
void appendNumber(zkstringbuffer& buffer, T value, void (*write)(T, char*)) {
  char text[room];
  write(value, text);
  buffer.append(text);
}
}  // namespace

int ConcatFunctionsHelper::lengthOf(const Binary& value) { return static_cast<int>(value.length()); }

void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, const BigDecimal& value) {
  buffer.append(bigDecimalToString(value));
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, const BigInteger& value) {
  buffer.append(bigIntegerToString(value));
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, const Binary& value) {
  buffer.append(binaryToString(value));
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, const DateTime& value) {
  buffer.append(dateTimeToString(value));
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, int value) {
  appendNumber<intTextSize>(buffer, value, intToString);
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, __int64 value) {
  appendNumber<longTextSize>(buffer, value, dlongToString);
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, float value) {
  appendNumber<doubleTextSize>(buffer, value, floatToString);
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, double value) {
  appendNumber<doubleTextSize>(buffer, value, doubleToString);
}
void ConcatFunctionsHelper::appendToString(zkstringbuffer& buffer, bool value) {
  buffer.append(value ? "true" : "false");
}

}  // namespace zarvik
