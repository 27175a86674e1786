#pragma once

#include "TagValueType.h"

namespace zarvik {

/// The text forms of FIX values:
///
///     order.setTransactTime(FIXType::parseUTCTimestamp(pair.getValue()));
class FIXType : public TagValueType {
 public:
  /// True for a text that begins with Y, false for N; FIXParsingException for all others, the empty one too.
  static bool parseBoolean(const zkstring& text);
  static bool parseBoolean_4_1(const zkstring& text) { return parseBoolean(text); }
};

}  // namespace zarvik
