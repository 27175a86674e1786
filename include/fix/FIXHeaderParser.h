#pragma once

namespace zarvik {

class FIXHeader;
class FIXTokenizer;

/// Reads the standard header of a FIX message, up to the first tag that is not of the header. Without state.
///
/// The tags may come in any order and none is required; of a repeated one the last counts. Tags of the header that
/// FIXHeader has no field for are stepped over, the sending time (52) among them. A data field that holds the delimiter
/// breaks apart there.
class FIXHeaderParser {
 public:
  /// Fills `header` from the message, of which it makes one copy. Fields whose tags are missing stay as they are.
  /// Throws FIXParsingException "[col <position behind the bad field>] <reason>" for a field that cannot be read.
  void parseHeader(FIXHeader& header, const char* text, int length);

 private:
  void parseHeader(FIXHeader* header, FIXTokenizer& tokenizer);
};

}  // namespace zarvik
