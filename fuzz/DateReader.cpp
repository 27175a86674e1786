// Reads a text by a pattern, both foreign: up to the first NUL byte stands the pattern, behind it the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "Exceptions.h"
#include "date/DateTime.h"

using namespace zarvik;

namespace {

/// What is printed by a pattern that names all fields in full is read back.
void roundTrip(const DateTime& value) {
  const zkstringliteral complete("yyyy/MMMM/dd HH:mm:ss.SSS");
  if (value.getYear() < 0) std::abort();  // no pattern reads a sign
  if (DateTime::fromString(value.toString(complete), complete) != value) std::abort();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const char* const bytes = reinterpret_cast<const char*>(data);
  const auto patternLength = static_cast<unsigned int>(size == 0 ? 0 : strnlen(bytes, size));
  const zkstring pattern(bytes, patternLength);
  const std::size_t textLength = size > patternLength ? size - patternLength - 1 : 0;
  const std::unique_ptr<char[]> text(new char[textLength]);  // exactly so long: nothing behind it may be read
  if (textLength != 0) std::memcpy(text.get(), bytes + patternLength + 1, textLength);
  try {
    const DateTime value = DateTime::fromString(text.get(), static_cast<unsigned int>(textLength), pattern.c_str());
    roundTrip(value);
    value.toString(pattern);
  } catch (const TransformRuntimeException& error) {
    if (error.getMessage().empty()) std::abort();
  }
  return 0;
}
