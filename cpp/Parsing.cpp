#include "Parsing.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <istream>
#include <ostream>

#include "ByteArrayInputSource.h"
#include "CNumbers.h"
#include "Exceptions.h"
#include "KelvaraTypes.h"
#include "StringInputSource.h"
#include "ThrowFrom.h"
#include "date/DateStr.h"
#include "formula/FormatFunctions.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/Parsing";

constinit const zkstringliteral dateRead("yyyyMMdd");
constinit const zkstringliteral timeRead("HH:mm:ss.SSS");
constinit const zkstringliteral dateTimeRead("yyyyMMdd-HH:mm:ss.SSS");
constinit const zkstringliteral datePrinted("yyyy-MM-dd");
constinit const zkstringliteral timePrinted("HH:mm:ss");
constinit const zkstringliteral timeAndMillisPrinted("HH:mm:ss.SSS");
constinit const zkstringliteral dateTimePrinted("yyyy-MM-ddTHH:mm:ss");
constinit const zkstringliteral dateTimeAndMillisPrinted("yyyy-MM-ddTHH:mm:ss.SSS");

[[noreturn]] void cannotConvert(const zkstring& text, const zkstring& type, CallSite site = CallSite::current()) {
  throwFrom(here, TransformException("Cannot convert '" + text + "' to " + type), site);
}

/// The C library's reading of a text that is no plain number from end to end: it takes what it can from the start, and
/// knows a leading '+' and the ends of the range.
double readByCLibrary(const zkstring& text) {
  if (!isOfNumber(text)) cannotConvert(text, "double");
  return std::strtod(Terminated(text).get(), nullptr);
}

/// Whether `text`, read to its end as a double, has told by its start that it is a number of digits: the others, such
/// as "inf" and "-nan", have a letter there.
bool startsAsDigits(const zkstring& text) {
  const char first = text[0] == '-' && text.length() > 1 ? text[1] : text[0];
  return first <= '9';
}

/// Whether the text up to its first NUL is `word`, which is in lower case, in any case.
bool isWord(const zkstring& text, const zkstring& word) {
  const char* const end = std::find(text.data(), text.data() + text.length(), '\0');
  const auto sameLetter = [](char c, char lower) {
    return c == lower || (c >= 'A' && c <= 'Z' && c - 'A' + 'a' == lower);
  };
  return std::equal(text.data(), end, word.data(), word.data() + word.length(), sameLetter);
}

Object* readDate(const zkstring& text, const zkstring& pattern) {
  return text.empty() ? nullptr : new DateObject(DateTime::fromString(text, pattern));
}

/// A time, a date, or both, told apart by the separators of the text.
Object* readDateTime(const zkstring& text) {
  constexpr unsigned int notFound = ~0U;
  if (text.find(':') == notFound) return readDate(text, dateRead);
  return readDate(text, text.find('-') == notFound ? timeRead : dateTimeRead);
}

Object* readCharacter(const zkstring& text) {
  if (text.length() > 1) cannotConvert(text, KelvaraTypes::CHAR_TYPE);
  return text.empty() ? nullptr : new CharObject(text[0]);
}

struct BoxReader {
  const zkstring& type;
  Object* (*read)(const zkstring& text);
};

constexpr BoxReader boxReaders[] = {
    {KelvaraTypes::STRING_TYPE, [](const zkstring& text) -> Object* { return new StringObject(text); }},
    {KelvaraTypes::INT_TYPE, [](const zkstring& text) -> Object* { return new IntObject(Parsing::parseInt(text)); }},
    {KelvaraTypes::LONG_TYPE, [](const zkstring& text) -> Object* { return new LongObject(Parsing::parseLong(text)); }},
    {KelvaraTypes::DOUBLE_TYPE,
     [](const zkstring& text) -> Object* { return new DoubleObject(Parsing::parseDouble(text)); }},
    {KelvaraTypes::FLOAT_TYPE,
     [](const zkstring& text) -> Object* { return new FloatObject(Parsing::parseFloat(text)); }},
    {KelvaraTypes::DATE_TIME_TYPE, readDateTime},
    {KelvaraTypes::DATE_ONLY_TYPE, [](const zkstring& text) { return readDate(text, dateRead); }},
    {KelvaraTypes::TIME_ONLY_TYPE, [](const zkstring& text) { return readDate(text, timeRead); }},
    {KelvaraTypes::CHAR_TYPE, readCharacter},
    {KelvaraTypes::BOOLEAN_TYPE,
     [](const zkstring& text) -> Object* { return new BoolObject(Parsing::parseBool(text)); }},
    {KelvaraTypes::BINARY_TYPE,
     [](const zkstring& text) -> Object* { return new BinaryObject(Binary::fromHexString(text)); }},
    {KelvaraTypes::BIG_DECIMAL_TYPE,
     [](const zkstring& text) -> Object* { return new BigDecimalObject(Parsing::parseBigDecimal(text)); }},
    {KelvaraTypes::BIG_INTEGER_TYPE,
     [](const zkstring& text) -> Object* { return new BigIntegerObject(Parsing::parseBigInteger(text)); }},
};

zkstring printDate(const DateTime& date, const zkstring& plain, const zkstring& withMillis) {
  return date.toString(date.getMilliSeconds() < 1 ? plain : withMillis);
}
}  // namespace

constinit const zkstringliteral Parsing::TRUE_VALUE("true");
constinit const zkstringliteral Parsing::FALSE_VALUE("false");
constinit const zkstringliteral Parsing::EMPTY("");

double Parsing::parseDouble(const zkstring& text) {
  const char* const end = text.data() + text.length();
  double value = 0;
  const std::from_chars_result result = std::from_chars(text.data(), end, value);
  if (result.ec == std::errc() && result.ptr == end && startsAsDigits(text)) return value;
  return readByCLibrary(text);
}

bool Parsing::parseBool(const zkstring& text) {
  if (isWord(text, TRUE_VALUE)) return true;
  if (isWord(text, FALSE_VALUE)) return false;
  throwFrom(here, FieldParsingException("Cannot convert " + text + " to boolean"));
}

char Parsing::parseChar(const zkstring& text) {
  if (text.length() == 1) return text[0];
  throwFrom(here, FieldParsingException("Cannot convert " + text + " to char"));
}

DateTime Parsing::parseDate(const zkstring& text, const zkstring& pattern) {
  return FormatFunctions::parseDate(text, pattern);
}

zkstring Parsing::formatDate(const DateTime& date, const zkstring& pattern) { return date.toString(pattern); }

void Parsing::formatDate(const DateTime& date, const zkstring& pattern, zkstring& out) {
  constexpr unsigned int room = 256;
  if (pattern.length() > room / DateStr::WIDEST_CHARACTER) {
    out = date.toString(pattern);
    return;
  }
  const zkstring kept = pattern;  // `out` may be the pattern itself
  char* const text = out.getBuffer(room);
  out.setBufferLength(static_cast<int>(DateStr::print(text, date, {kept.data(), kept.length()}) - text));
}

zkstring Parsing::intToString(int value) { return zarvik::intToString(value); }
zkstring Parsing::longToString(__int64 value) { return zarvik::dlongToString(value); }
zkstring Parsing::doubleToString(double value) { return zarvik::doubleToString(value); }
zkstring Parsing::floatToString(float value) { return zarvik::floatToString(value); }
zkstring Parsing::boolToString(bool value) { return zarvik::boolToString(value); }
zkstring Parsing::charToString(char value) { return zarvik::charToString(value); }
zkstring Parsing::dateToString(const DateTime& value) { return dateTimeToString(value); }

Object* Parsing::toRuntimeObject(const zkstring& text, const zkstring& type) {
  for (const BoxReader& reader : boxReaders) {
    if (type == reader.type) return reader.read(text);
  }
  cannotConvert(text, type);
}

zkstring Parsing::runtimeObjectToString(Object* object, const zkstring& type) {
  if (type == KelvaraTypes::DATE_TIME_TYPE)
    return printDate(object->getDate(), dateTimePrinted, dateTimeAndMillisPrinted);
  if (type == KelvaraTypes::TIME_ONLY_TYPE) return printDate(object->getDate(), timePrinted, timeAndMillisPrinted);
  if (type == KelvaraTypes::DATE_ONLY_TYPE) return object->getDate().toString(datePrinted);
  if (type == KelvaraTypes::BINARY_TYPE) return object->getBinary().toHexString();
  return object->toString();
}

bool Parsing::hasStoredForm(const zkstring& type) {
  return type == KelvaraTypes::DATE_TIME_TYPE || type == KelvaraTypes::TIME_ONLY_TYPE ||
         type == KelvaraTypes::DATE_ONLY_TYPE || type == KelvaraTypes::BINARY_TYPE;
}

Object* Parsing::toRawMessageTypeObject(Object* object) {
  if (const auto* const bytes = dynamic_cast<BinaryObject*>(object)) return new ByteArrayInputSource(bytes->getValue());
  if (const auto* const text = dynamic_cast<StringObject*>(object)) return new StringInputSource(text->getValue());
  return object;
}

zkstring Parsing::readUTF(std::istream& in) {
  const int high = static_cast<signed char>(in.get());
  const int low = static_cast<signed char>(in.get());
  if (!in) return {};
  const auto length = static_cast<unsigned short>(high * 256 + low);
  zkstring text;
  in.read(text.getBuffer(length), length);
  text.setBufferLength(static_cast<int>(in.gcount()));
  return text;
}

void Parsing::writeUTF(std::ostream& out, const zkstring& text) {
  const auto length = static_cast<unsigned short>(text.length());
  const auto swapped = static_cast<unsigned short>(length << 8 | length >> 8);
  out << swapped;
  out.write(text.data(), std::min<std::streamsize>(swapped, text.length()));
}

void Parsing::throwNullValue() { throwFrom(here, TransformNullValueException("Null value")); }

}  // namespace zarvik
