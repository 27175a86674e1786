#pragma once

#include "zkstring.h"

namespace zarvik {

class ObjectList;

/// The texts of messages with arguments: of the catalogues, and of formulas.
class MessageFormatter {
 public:
  /// `pattern` with each {number} replaced by the text of the argument of that number, counted from 0; a null argument
  /// reads "null". Between the braces stands what `v_atoi` reads, so that {+0} and {+} are {0}. A brace that begins
  /// nothing of the kind stays as it is, as does a number that no argument has. A doubled single quote gives one; a
  /// lone one stays. There are no further formats and no errors. The time grows with the pattern and the result only.
  static zkstring format(const zkstring& pattern, const ObjectList& arguments);
};

}  // namespace zarvik
