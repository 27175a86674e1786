#pragma once

#include "zkstring.h"

namespace zarvik {

/// The type words of metadata and boxed values; a field's type is one of them, compared by text.
class KelvaraTypes {
 public:
  static const zkstringliteral INT_TYPE;
  static const zkstringliteral FLOAT_TYPE;
  static const zkstringliteral DOUBLE_TYPE;
  static const zkstringliteral DATE_TIME_TYPE;
  static const zkstringliteral DATE_ONLY_TYPE;
  static const zkstringliteral TIME_ONLY_TYPE;
  static const zkstringliteral ISO_DATE_TIME_TYPE;
  static const zkstringliteral ISO_DATE_TYPE;
  static const zkstringliteral ISO_TIME_TYPE;
  static const zkstringliteral STRING_TYPE;
  static const zkstringliteral CHAR_TYPE;
  static const zkstringliteral SECTION_TYPE;     ///< a repeating group
  static const zkstringliteral DATAOBJECT_TYPE;  ///< a nested object, treated as a section of one element
  static const zkstringliteral LONG_TYPE;
  static const zkstringliteral BOOLEAN_TYPE;
  static const zkstringliteral BINARY_TYPE;
  static const zkstringliteral RAW_MESSAGE_TYPE;
  static const zkstringliteral BIG_INTEGER_TYPE;
  static const zkstringliteral BIG_DECIMAL_TYPE;
};

}  // namespace zarvik
