#pragma once

#include "MessageIdentifier.h"

namespace zarvik {

/// Recognises SIAC Canonical messages by their first bytes, "10001=Canonical", and reads their header for routing: the
/// body is not looked at.
///
/// Registered as "SIACCanonicalMessageIdentifier", and in the default service. Without state. A text is copied once.
class SIACCanonicalMessageIdentifier : public MessageIdentifier {
 public:
  /// The header as a record named "SIACCanonicalHeader". Throws SIACCanonicalParsingException for a header that cannot
  /// be read.
  DataObject* identifyMessage(InputSource& source) override;

  bool isMatch(const char* text, int length) const;
  zkstring getMessageFormat() const;  ///< "Canonical"
};

}  // namespace zarvik

/// Registers the class under its name, once. The library does so by itself.
void registerClassSIACCanonicalMessageIdentifier();
