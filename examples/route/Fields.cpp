#include "Fields.h"

#include <algorithm>
#include <charconv>

#include "Exceptions.h"
#include "Frame.h"

namespace route {
namespace {

/// A field that gives the length, in bytes, of the data field behind it.
struct DataField {
  int lengthTag;
  int dataTag;
};
constexpr DataField dataFields[] = {{90, 91},   {93, 89},   {95, 96},   {212, 213}, {348, 349}, {350, 351},
                                    {352, 353}, {354, 355}, {356, 357}, {358, 359}, {360, 361}, {362, 363},
                                    {364, 365}, {445, 446}, {618, 619}, {621, 622}};

/// Whether `data` is the data field that `length` announces.
bool announces(int length, int data) {
  return std::any_of(std::begin(dataFields), std::end(dataFields),
                     [&](const DataField& field) { return field.lengthTag == length && field.dataTag == data; });
}

bool readNumber(std::string_view text, int& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end && number > 0;
}
}  // namespace

bool Fields::next() {
  if (rest.empty()) return false;
  ++number;
  const int previousTag = tag;
  const std::string_view previousValue = value;
  const std::size_t equal = rest.find('=');
  if (equal == std::string_view::npos || equal > rest.find(fieldEnd)) refuse("has no '='");
  if (!readNumber(rest.substr(0, equal), tag)) refuse("has no number as its tag");

  std::size_t end = rest.find(fieldEnd, equal);
  int length = 0;
  if (announces(previousTag, tag) && readNumber(previousValue, length))
    end = equal + 1 + static_cast<std::size_t>(length);
  if (end >= rest.size() || rest[end] != fieldEnd) refuse("does not end where it should");
  if (end == equal + 1) refuse("has no value");
  value = rest.substr(equal + 1, end - equal - 1);
  rest.remove_prefix(end + 1);
  return true;
}

void Fields::refuse(const char* why) const {
  const std::string_view field = rest.substr(0, std::min(rest.find(fieldEnd), std::size_t{40}));
  const std::string text = "Field " + std::to_string(number) + " '" + std::string(field) + "' " + why;
  throw zarvik::FieldParsingException(zarvik::zkstring(text.data(), static_cast<unsigned int>(text.size())));
}

}  // namespace route
