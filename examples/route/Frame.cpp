#include "Frame.h"

#include <charconv>
#include <numeric>
#include <string>

#include "Exceptions.h"
#include "InputSource.h"
#include "ThrowFrom.h"

namespace route {
namespace {

constexpr char here[] = "examples/route/Frame";
constexpr char fieldEnd = '\x01';

[[noreturn]] void refuse(const std::string& why) {
  zarvik::FIXParsingException error(why.c_str());
  error.setPhase(zarvik::ExceptionObject::getINPUT_PHASE());
  error.setErrorType(zarvik::ExceptionObject::getERROR_TYPE_PARSING());
  zarvik::throwFrom(here, error);
}

/// Takes the field that starts with `tag` (such as "8=") off the front of `rest`, and gives its value.
std::string_view takeField(std::string_view& rest, std::string_view tag, const char* missing) {
  const std::size_t end = rest.find(fieldEnd);
  if (end == std::string_view::npos || !rest.starts_with(tag)) refuse(missing);
  const std::string_view value = rest.substr(tag.size(), end - tag.size());
  rest.remove_prefix(end + 1);
  return value;
}

bool readNumber(std::string_view digits, std::size_t& number) {
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  return error == std::errc() && stop == end && !digits.empty();
}

void compare(const char* field, std::size_t told, std::size_t counted) {
  if (told == counted) return;
  refuse(std::string(field) + " is " + std::to_string(told) + ", counted " + std::to_string(counted));
}
}  // namespace

void checkFrame(std::string_view message) {
  constexpr std::string_view trailerStart(
      "\x01"
      "10=");
  constexpr std::size_t trailerSize = 7;  // "10=", three digits and the field's end

  std::string_view rest = message;
  takeField(rest, "8=", "BeginString (8) is not the first field");
  std::size_t length = 0;
  if (!readNumber(takeField(rest, "9=", "BodyLength (9) is not the second field"), length)) {
    refuse("BodyLength (9) is not a number");
  }
  const std::string_view body = rest;
  takeField(rest, "35=", "MsgType (35) is not the third field");

  const std::size_t trailer = body.rfind(trailerStart) + 1;  // 0 if there is none
  std::size_t checksum = 0;
  if (trailer == 0 || body.size() - trailer != trailerSize || body.back() != fieldEnd ||
      !readNumber(body.substr(trailer + 3, 3), checksum)) {
    refuse("CheckSum (10) of three digits is not the last field");
  }
  compare("BodyLength (9)", length, trailer);
  const std::string_view summed = message.substr(0, message.size() - trailerSize);
  const auto add = [](unsigned int sum, char byte) { return sum + static_cast<unsigned char>(byte); };
  compare("CheckSum (10)", checksum, std::accumulate(summed.begin(), summed.end(), 0U, add) % 256);
}

zarvik::DataObject* FrameCheckingIdentifier::identifyMessage(zarvik::InputSource& source) {
  int length = 0;
  const char* const bytes = source.getAsBytes(length);
  const std::string_view message(bytes, static_cast<std::size_t>(length));
  if (message.starts_with("8=FIX")) checkFrame(message);
  return FIXMessageIdentifier::identifyMessage(source);
}

}  // namespace route
