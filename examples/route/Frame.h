#pragma once

#include <string_view>

#include "fix/FIXMessageIdentifier.h"

namespace route {

/// Throws zarvik::FIXParsingException unless the frame of `message` is sound: BeginString, BodyLength and MsgType come
/// first, in this order, the checksum comes last, and length and checksum are right. Fields end in byte 1.
void checkFrame(std::string_view message);

/// Knows FIX messages as the library does, and holds them to their frame, which the library leaves to the host.
class FrameCheckingIdentifier : public zarvik::FIXMessageIdentifier {
 public:
  zarvik::DataObject* identifyMessage(zarvik::InputSource& source) override;
};

}  // namespace route
