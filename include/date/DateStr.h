#pragma once

#include <string_view>

#include "date/DateTime.h"

namespace zarvik {

/// The pattern engine of the dates: prints and reads dates by patterns such as "yyyyMMdd-HH:mm:ss.SSS".
///
/// A run of one letter is one unit; there is no quoting, other characters stand for themselves.
///
/// | run         | prints                                        | reads                                            |
/// |-------------|-----------------------------------------------|--------------------------------------------------|
/// | H d m s     | two digits, whatever the run's length         | two characters, runs of two only                 |
/// | S           | at least three digits                         | up to three digits, runs up to SSS               |
/// | M MM        | two digits                                    | MM: two characters                               |
/// | MMM         | Jan to Dec                                    | the same in any case                             |
/// | MMMM...     | January to December                           | the same in any case                             |
/// | yyyy        | at least four digits                          | four characters, also for longer runs            |
/// | yy          | two digits, also for all other runs of y      | two characters, from 70 in the 1900s, else 2000s |
///
/// Number fields read digits as far as they go and step over their full width, so that a short field gives a smaller
/// number and no error. What a pattern lacks is read as that of 1 January 1970, 00:00. Neither direction allocates, and
/// no text is looked at beyond its end. The usual sequences of runs are printed and read as blocks of eight characters.
class DateStr {
 public:
  /// The longest text that one character of a pattern can give: milliseconds outside their range.
  static constexpr unsigned int WIDEST_CHARACTER = 11;

  /// Prints to `out`, which has room for it, without a terminator, and gives the end. The year's sign is dropped.
  static char* print(char* out, const DateTime& value, std::string_view pattern);

  /// Throws TransformRuntimeException for a run that cannot be read, a month name or literal that is not there, text
  /// left over, and fields that are not in the calendar.
  static DateTime read(std::string_view text, std::string_view pattern);
};

}  // namespace zarvik
