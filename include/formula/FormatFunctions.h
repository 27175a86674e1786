#pragma once

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "Conversion.h"
#include "ObjectList.h"
#include "Parsing.h"
#include "date/DateTime.h"
#include "zkstring.h"
#include "zkstringbuffer.h"

namespace zarvik {

/// The functions of formulas between texts and values: static, without state, on plain values.
class FormatFunctions {
 public:
  static zkstring format(const zkstring& pattern, const ObjectList& arguments);  ///< as MessageFormatter

  static zkstring formatDate(const DateTime& date) { return dateTimeToString(date); }  ///< as "MMM dd, yyyy"
  static zkstring formatDate(const DateTime& date, const zkstring& pattern) { return date.toString(pattern); }
  /// As "MMM dd, yyyy", or by `pattern`; a NUL ends the text. Errors as DateTime::fromString tells.
  static DateTime parseDate(const zkstring& text);
  static DateTime parseDate(const zkstring& text, const zkstring& pattern);
  static bool isDate(const zkstring& text, const zkstring& pattern);  ///< whether parseDate would succeed

  /// Whether the text begins with a number and holds nothing but digits, signs, points and the letters e and E.
  static bool isDouble(const zkstring& text);
  static bool isFloat(const zkstring& text) { return isDouble(text); }
  /// Odd on purpose: up to 9 characters may be digits and minus signs in any order, with a plus or minus sign in front,
  /// as long as there is one digit; 1-2 is an integer here. A longer text is what `v_atoi` takes.
  static bool isInt(const zkstring& text);
  static bool isLong(const zkstring& text);  ///< what `v_atol` takes, so the empty text too

  // From text: the number that the text begins with, behind white space; what follows it is ignored. Without one they
  // throw TransformRuntimeException "Formula execution error. Cannot convert '...' to int" (or double, float).
  static int toInt(const zkstring& text);  ///< beyond the range some other number
  static double toDouble(const zkstring& text);
  static float toFloat(const zkstring& text);
  static __int64 toLong(const zkstring& text) { return Parsing::parseLong(text); }  ///< the whole text
  static char toChar(const zkstring& text) { return text.empty() ? ' ' : text[0]; }

  static int toInt(char value) { return static_cast<signed char>(value); }
  static int toInt(const BigDecimal& value) { return value.toInt(); }
  static int toInt(const BigInteger& value) { return value.toInt(); }
  static __int64 toLong(const BigDecimal& value) { return value.toLong(); }
  static __int64 toLong(const BigInteger& value) { return value.toLong(); }
  static double toDouble(const BigDecimal& value) { return value.toDouble(); }
  static double toDouble(const BigInteger& value) { return value.toDouble(); }
  static float toFloat(const BigDecimal& value) { return value.toFloat(); }
  static float toFloat(const BigInteger& value) { return value.toFloat(); }

  static BigDecimal toBigDecimal(const zkstring& text) { return text; }  ///< what is no number warns and gives 0
  static BigDecimal toBigDecimal(int value) { return value; }
  static BigDecimal toBigDecimal(__int64 value) { return value; }
  static BigDecimal toBigDecimal(float value) { return value; }
  static BigDecimal toBigDecimal(double value) { return value; }
  static BigDecimal toBigDecimal(const BigInteger& value) { return value; }
  // A fraction is kept.
  static BigInteger toBigInteger(const zkstring& text) { return text; }
  static BigInteger toBigInteger(int value) { return value; }
  static BigInteger toBigInteger(__int64 value) { return value; }
  static BigInteger toBigInteger(float value) { return BigInteger(BigDecimal(value)); }
  static BigInteger toBigInteger(double value) { return BigInteger(BigDecimal(value)); }

  static zkstring toText(int value) { return intToString(value); }
  static zkstring toText(__int64 value) { return dlongToString(value); }
  static zkstring toText(float value) { return floatToString(value); }
  static zkstring toText(double value) { return doubleToString(value); }
  static zkstring toText(char value) { return charToString(value); }
  static zkstring toText(bool value) { return boolToString(value); }
  static zkstring toText(const char* value) { return value; }
  static zkstring toText(const BigDecimal& value) { return bigDecimalToString(value); }
  static zkstring toText(const BigInteger& value) { return bigIntegerToString(value); }
  static zkstring toText(const Binary& value) { return binaryToString(value); }
  static zkstring& toText(zkstringbuffer& buffer) { return buffer; }  ///< the buffer itself, which sees later edits
};

}  // namespace zarvik
