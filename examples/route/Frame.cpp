#include "Frame.h"

#include <charconv>
#include <numeric>

namespace route {
namespace {

/// Takes the field that starts with `tag` (such as "8=") off the front of `rest`; false if another one stands there.
bool takeField(std::string_view& rest, std::string_view tag, std::string_view& value) {
  const std::size_t end = rest.find(fieldEnd);
  if (end == std::string_view::npos || !rest.starts_with(tag)) return false;
  value = rest.substr(tag.size(), end - tag.size());
  rest.remove_prefix(end + 1);
  return true;
}

bool readNumber(std::string_view digits, std::size_t& number) {
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  return error == std::errc() && stop == end && !digits.empty();
}

std::size_t checksumOf(std::string_view bytes) {
  return std::accumulate(bytes.begin(), bytes.end(), std::size_t{0},
                         [](std::size_t sum, char byte) { return (sum + static_cast<unsigned char>(byte)) % 256; });
}

std::string mismatch(const char* field, std::size_t told, std::size_t counted) {
  return std::string(field) + " is " + std::to_string(told) + ", counted " + std::to_string(counted);
}
}  // namespace

std::string readFrame(std::string_view message, Frame& frame) {
  constexpr std::string_view trailerStart(
      "\x01"
      "10=");
  constexpr std::size_t trailerSize = 7;  // "10=", three digits and the field's end

  std::string_view rest = message;
  if (!takeField(rest, "8=", frame.beginString)) return "BeginString (8) is not the first field";
  if (!frame.beginString.starts_with("FIX")) return "BeginString (8) is not of FIX";
  std::string_view lengthText;
  std::size_t length = 0;
  if (!takeField(rest, "9=", lengthText)) return "BodyLength (9) is not the second field";
  if (!readNumber(lengthText, length)) return "BodyLength (9) is not a number";
  const std::string_view body = rest;
  if (!takeField(rest, "35=", frame.messageType)) return "MsgType (35) is not the third field";
  if (frame.messageType.empty()) return "MsgType (35) is empty";

  const std::size_t trailer = body.rfind(trailerStart) + 1;  // 0 if there is none
  std::size_t checksum = 0;
  if (trailer == 0 || body.size() - trailer != trailerSize || body.back() != fieldEnd ||
      !readNumber(body.substr(trailer + 3, 3), checksum)) {
    return "CheckSum (10) of three digits is not the last field";
  }
  if (length != trailer) return mismatch("BodyLength (9)", length, trailer);
  const std::size_t sum = checksumOf(message.substr(0, message.size() - trailerSize));
  if (checksum != sum) return mismatch("CheckSum (10)", checksum, sum);
  return {};
}

}  // namespace route
