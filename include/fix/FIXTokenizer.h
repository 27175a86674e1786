#pragma once

#include "TagValueTokenizer.h"

namespace zarvik {

/// Cuts a FIX message into its fields; the delimiter is byte 1 (SOH). Its parsing error is FIXParsingException.
class FIXTokenizer : public TagValueTokenizer {
 public:
  FIXTokenizer(const zkstring& text, char delimiter) : TagValueTokenizer(text, delimiter) {}

 private:
  [[noreturn]] void fail(const zkstring& message) const override;
  const char* formatName() const override { return "FIX"; }
};

}  // namespace zarvik
