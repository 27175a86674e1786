#pragma once

#include <iosfwd>

#include "Conversion.h"
#include "WrapperObjects.h"
#include "zkstring.h"

namespace zarvik {

/// From text to every plain value and back, boxed or not, and the unboxing of values that may be null.
///
///     const double price = Parsing::parseDouble(field);
///     SmartPtr<Object> box(Parsing::toRuntimeObject(text, KelvaraTypes::DOUBLE_TYPE));
///
/// Nothing is trimmed. What cannot be read throws, and leaves nothing behind.
class Parsing {
 public:
  static const zkstringliteral TRUE_VALUE;
  static const zkstringliteral FALSE_VALUE;
  static const zkstringliteral EMPTY;

  /// The readers of Conversion.h, with their errors and their ways at the limits.
  static int parseInt(const zkstring& text) { return v_atoi(text.data(), text.data() + text.length()); }
  static __int64 parseLong(const zkstring& text) { return v_atol(text.data(), text.data() + text.length()); }

  /// The number at the start of a text of digits, '+', '-', '.', 'e' and 'E', as the C library reads it: 1-2 is 1, an
  /// empty text is 0, out of range is infinity or what is left near 0. Any other character throws TransformException.
  static double parseDouble(const zkstring& text);
  static float parseFloat(const zkstring& text) { return static_cast<float>(parseDouble(text)); }

  static bool parseBool(const zkstring& text);  ///< "true" or "false" in any case, up to a NUL; FieldParsingException
  static char parseChar(const zkstring& text);  ///< the only character; FieldParsingException
  static BigDecimal parseBigDecimal(const zkstring& text) { return text; }  ///< no error: warns and gives 0
  static BigInteger parseBigInteger(const zkstring& text) { return text; }  ///< the same; keeps a fraction
  static Binary parseBinary(const zkstring& text) { return Binary(text.data(), text.length()); }  ///< a copy as it is
  /// A NUL ends the text. Throws TransformRuntimeException, as DateTime::fromString does.
  static DateTime parseDate(const zkstring& text, const zkstring& pattern);

  /// The value in a box; null throws TransformNullValueException "Null value". Any number serves as any other.
  static int intValue(const NumberObject* box) { return given(box).getInt(); }
  static __int64 longValue(const NumberObject* box) { return given(box).getLong(); }
  static double doubleValue(const NumberObject* box) { return given(box).getDouble(); }
  static float floatValue(const NumberObject* box) { return given(box).getFloat(); }
  static zkstring stringValue(const StringObject* box) { return given(box).getValue(); }
  static bool boolValue(const BoolObject* box) { return given(box).getValue(); }
  static char charValue(const CharObject* box) { return given(box).getValue(); }
  static DateTime dateValue(const DateObject* box) { return given(box).getValue(); }
  static Binary binaryValue(const BinaryObject* box) { return given(box).getValue(); }
  static BigDecimal bigDecimalValue(const BigDecimalObject* box) { return given(box).getValue(); }
  static BigInteger bigIntegerValue(const BigIntegerObject* box) { return given(box).getValue(); }

  /// The value in a box; null is 0, false, empty, or the default date.
  static int intValueWithNull(const NumberObject* box) { return box != nullptr ? box->getInt() : 0; }
  static __int64 longValueWithNull(const NumberObject* box) { return box != nullptr ? box->getLong() : 0; }
  static double doubleValueWithNull(const NumberObject* box) { return box != nullptr ? box->getDouble() : 0; }
  static float floatValueWithNull(const NumberObject* box) { return box != nullptr ? box->getFloat() : 0; }
  static zkstring stringValueWithNull(const StringObject* box) { return valueOrDefault<zkstring>(box); }
  static bool boolValueWithNull(const BoolObject* box) { return valueOrDefault<bool>(box); }
  static char charValueWithNull(const CharObject* box) { return valueOrDefault<char>(box); }
  static DateTime dateValueWithNull(const DateObject* box) { return valueOrDefault<DateTime>(box); }
  static Binary binaryValueWithNull(const BinaryObject* box) { return valueOrDefault<Binary>(box); }
  static BigDecimal bigDecimalValueWithNull(const BigDecimalObject* box) { return valueOrDefault<BigDecimal>(box); }
  static BigInteger bigIntegerValueWithNull(const BigIntegerObject* box) { return valueOrDefault<BigInteger>(box); }

  static zkstring formatDate(const DateTime& date, const zkstring& pattern);
  /// The same into a string, in its own block when nobody shares it and it has room for 256 characters.
  static void formatDate(const DateTime& date, const zkstring& pattern, zkstring& out);

  static Binary hexStringToBinary(const zkstring& text) { return Binary::fromHexString(text); }
  static zkstring binaryToHexString(const Binary& value) { return value.toHexString(); }
  static Binary base64StringToBinary(const zkstring& text) { return Binary::fromBase64String(text); }
  static zkstring binaryToBase64String(const Binary& value) { return value.toBase64String(); }

  /// The text forms of Conversion.h.
  static zkstring intToString(int value);
  static zkstring longToString(__int64 value);
  static zkstring doubleToString(double value);
  static zkstring floatToString(float value);
  static zkstring boolToString(bool value);
  static zkstring charToString(char value);
  static zkstring stringToString(const zkstring& value) { return value; }
  static zkstring bigDecimalToString(const BigDecimal& value) { return value.toString(); }
  static zkstring bigIntegerToString(const BigInteger& value) { return value.toString(); }
  static zkstring binaryToString(const Binary& value) { return value.toString(); }
  static zkstring dateToString(const DateTime& value);

  static bool isNumericalDigit(char c) { return c >= '0' && c <= '9'; }

  /// A new box of the kind that the type word names, owned by the caller, from the text of a stored form. An empty
  /// text is null for dates and characters. Bytes are read as hexadecimal; dates as "yyyyMMdd", "HH:mm:ss.SSS" or both
  /// with '-' between. A text or a word that does not fit throws TransformException "Cannot convert '...' to ...", or
  /// what the reader of the kind throws.
  static Object* toRuntimeObject(const zkstring& text, const zkstring& type);

  /// The stored form of `object`: dates in the fashion of ISO 8601, with milliseconds only where there are some, bytes
  /// as hexadecimal, all others by `toString`. For the words of dates and bytes the object is of that kind.
  static zkstring runtimeObjectToString(Object* object, const zkstring& type);
  /// Whether values of the type have a stored form that differs from their `toString`: dates and bytes.
  static bool hasStoredForm(const zkstring& type);

  static Object* toBinaryTypeObject(Object* object) { return object; }  ///< odd on purpose: whatever it is given
  /// Of a BinaryObject or StringObject a new raw message, with count 0, that shares its value; all else as it is.
  static Object* toRawMessageTypeObject(Object* object);

  /// Not inverses of each other, on purpose. Reads a length of two signed bytes, the first times 256, kept to 16 bits,
  /// and that many bytes, or those that the stream still has.
  static zkstring readUTF(std::istream& in);
  /// Writes the length with its two low bytes swapped, as decimal digits, and then so many bytes of the text, or as
  /// many as it has.
  static void writeUTF(std::ostream& out, const zkstring& text);

 private:
  template <class Box>
  static const Box& given(const Box* box) {
    if (box == nullptr) throwNullValue();
    return *box;
  }
  template <class T, class Box>
  static T valueOrDefault(const Box* box) {
    return box != nullptr ? box->getValue() : T{};
  }
  [[noreturn]] static void throwNullValue();
};

}  // namespace zarvik
