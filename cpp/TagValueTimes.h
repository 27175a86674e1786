#pragma once

namespace zarvik {

class DateTime;

/// The texts of TagValueType for whoever writes on behind them: no terminator, and the end is given.
constexpr int widestTime = 256;  ///< bytes that a text takes at most, of fields outside their ranges too
char* putUTCTimestamp(char* out, const DateTime& value);
char* putUTCTimeOnly(char* out, const DateTime& value);
char* putUTCDate(char* out, const DateTime& value);

}  // namespace zarvik
