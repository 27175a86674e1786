// Readers of numbers against a second formulation of their rules and the C library; writers of the bytes' own values
// against the C library.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "Conversion.h"
#include "Exceptions.h"
#include "Parsing.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// What `read` gives, nothing if it refuses the text.
template <class Read>
auto outcome(Read read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const zarvik::TransformException&) {
    return std::nullopt;
  }
}

__extension__ typedef __int128 Wide;

/// The value is collected below zero in the range of T, and refused when a step leaves it above.
template <class T>
std::optional<T> readByRule(const std::string& text) {
  const bool hasSign = text[0] == '-' || text[0] == '+';
  Wide value = 0;
  for (std::size_t i = hasSign ? 1 : 0; i < text.size(); ++i) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    value = value * 10 - (text[i] - '0');
    while (value < std::numeric_limits<T>::min()) value += Wide{1} << (8 * sizeof(T));
    if (value > 0) return std::nullopt;
  }
  if (text[0] != '-') value = -value;
  if (value > std::numeric_limits<T>::max()) return std::nullopt;
  return static_cast<T>(value);
}

std::optional<std::uint64_t> readDoubleByRule(const std::string& text) {
  if (text.find_first_not_of("0123456789+-.eE") != std::string::npos) return std::nullopt;
  return std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr));
}

void readsAsTold(const std::string& text) {
  const zarvik::zkstring own(text.data(), static_cast<unsigned int>(text.size()));
  require(outcome([&] { return std::bit_cast<std::uint64_t>(zarvik::Parsing::parseDouble(own)); }) ==
          readDoubleByRule(text));
  const auto asInt = outcome([&] { return zarvik::Parsing::parseInt(own); });
  const auto asLong = outcome([&] { return zarvik::Parsing::parseLong(own); });
  if (text.empty()) return require(!asInt && asLong == 0);
  require(asInt == readByRule<int>(text));
  require(asLong == readByRule<__int64>(text));
}

void printsAsTold(std::uint64_t bits) {
  char text[zarvik::doubleTextSize];
  char expected[400];
  const double value = std::bit_cast<double>(bits);
  zarvik::doubleToString(value, text);
  std::snprintf(expected, sizeof expected, "%.8f", value);
  const std::size_t length = std::strlen(text);
  require(std::strncmp(text, expected, length) == 0);
  require(expected[length + std::strspn(expected + length, "0")] == '\0');

  zarvik::v_ltoa(static_cast<__int64>(bits), text);
  require(text == std::to_string(static_cast<__int64>(bits)));
  zarvik::v_itoa(static_cast<int>(bits), text);
  require(text == std::to_string(static_cast<int>(bits)));
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  readsAsTold(std::string(reinterpret_cast<const char*>(data), size));
  std::uint64_t bits = 0;
  std::memcpy(&bits, data, std::min(size, sizeof bits));
  printsAsTold(bits);
  return 0;
}
