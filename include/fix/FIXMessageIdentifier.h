#pragma once

#include "MessageIdentifier.h"

namespace zarvik {

/// Recognises FIX messages by their first bytes, "8=FIX", and reads their header for routing: the body is not looked
/// at.
///
/// Registered as "FIXMessageIdentifier", and in the default service. Without state. A text is copied once.
class FIXMessageIdentifier : public MessageIdentifier {
 public:
  /// The header as a new FIXHeader. Throws FIXParsingException for a header that cannot be read.
  DataObject* identifyMessage(InputSource& source) override;

  bool isMatch(const char* text, int length) const;
  zkstring getMessageFormat() const;  ///< "FIX"
};

}  // namespace zarvik

/// Registers the class under its name, once. The library does so by itself.
void registerClassFIXMessageIdentifier();
