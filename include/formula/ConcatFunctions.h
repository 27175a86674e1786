#pragma once

#include "zkstring.h"
#include "zkstringbuffer.h"

namespace zarvik {

class BigDecimal;
class BigInteger;
class Binary;
class DateTime;

/// What the concatenation of values of several types needs: the room that a value takes in a buffer, in bytes, as an
/// estimate and never a bound, and its text at the buffer's end. Dates print as "MMM dd, yyyy", all else as
/// Conversion.h tells.
class ConcatFunctionsHelper {
 public:
  static int lengthOf(const BigDecimal& /*value*/) { return 40; }
  static int lengthOf(const BigInteger& /*value*/) { return 30; }
  static int lengthOf(const Binary& value);
  static int lengthOf(const DateTime& /*value*/) { return 20; }
  static int lengthOf(const zkstring& value) { return static_cast<int>(value.length()); }
  static int lengthOf(const char* value) { return static_cast<int>(std::strlen(value)); }
  static int lengthOf(char /*value*/) { return 1; }
  static int lengthOf(int /*value*/) { return 10; }
  static int lengthOf(__int64 /*value*/) { return 15; }
  static int lengthOf(float /*value*/) { return 15; }
  static int lengthOf(double /*value*/) { return 15; }
  static int lengthOf(bool /*value*/) { return 4; }

  static void appendToString(zkstringbuffer& buffer, const BigDecimal& value);
  static void appendToString(zkstringbuffer& buffer, const BigInteger& value);
  static void appendToString(zkstringbuffer& buffer, const Binary& value);
  static void appendToString(zkstringbuffer& buffer, const DateTime& value);
  static void appendToString(zkstringbuffer& buffer, const zkstring& value) { buffer.append(value); }
  static void appendToString(zkstringbuffer& buffer, const char* value) { buffer.append(value); }
  static void appendToString(zkstringbuffer& buffer, char value) { buffer.append(value); }
  static void appendToString(zkstringbuffer& buffer, int value);
  static void appendToString(zkstringbuffer& buffer, __int64 value);
  static void appendToString(zkstringbuffer& buffer, float value);
  static void appendToString(zkstringbuffer& buffer, double value);
  static void appendToString(zkstringbuffer& buffer, bool value);
};

/// The concatenation of a formula, for a text type: generated code sums `lengthOf`, makes room in a buffer and appends
/// each argument.
template <class T>
class ConcatFunctions {};

}  // namespace zarvik
