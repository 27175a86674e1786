#pragma once

#include <string>
#include <string_view>

namespace route {

constexpr char fieldEnd = '\x01';

/// What the frame of a FIX message tells; views of the message.
struct Frame {
  std::string_view beginString;
  std::string_view messageType;
};

/// Reads the frame of `message`, whose fields end in byte 1: BeginString, BodyLength and MsgType come first, in this
/// order, and length and checksum are right. Fills `frame` and gives an empty text, or tells what is wrong.
std::string readFrame(std::string_view message, Frame& frame);

}  // namespace route
