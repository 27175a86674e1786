// The string functions of formulas against the same work on the standard library's strings.
#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "MessageFormatter.h"
#include "ObjectList.h"
#include "formula/TextFunctions.h"
#include "support/Subject.h"

using zarvik::TextFunctions;
using zarvik::zkstring;

namespace {

/// Hides from the optimiser what a value is.
template <class T>
T& opaque(T& value) {
  benchmark::DoNotOptimize(value);
  return value;
}

zkstring mine(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }

/// `size` bytes of words of 3 to 11 letters in either case, with commas between.
std::string words(std::size_t size) {
  std::string text;
  for (unsigned int word = 1; text.size() < size; word = word * 1103515245 + 12345) {
    for (unsigned int i = 0; i < 3 + (word >> 16) % 9; ++i) text += "aBcdEfGhIjk"[(word >> 8 >> i) % 11];
    text += ',';
  }
  text.resize(size);
  return text;
}

std::string lower(const std::string& text) {
  std::string result(text.size(), '\0');
  std::transform(text.begin(), text.end(), result.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

std::string_view trim(std::string_view text) {
  const auto isTrimmed = [](char c) { return static_cast<signed char>(c) < 33; };
  while (!text.empty() && isTrimmed(text.front())) text.remove_prefix(1);
  while (!text.empty() && isTrimmed(text.back())) text.remove_suffix(1);
  return text;
}

std::string replace(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  result.reserve(text.size());
  std::size_t rest = 0;
  for (std::size_t hit; (hit = text.find(from, rest)) != std::string_view::npos; rest = hit + from.size()) {
    result.append(text, rest, hit - rest).append(to);
  }
  return result.append(text, rest);
}

template <class Part>
std::vector<Part> split(std::string_view delimiter, std::string_view text) {
  std::vector<Part> parts;
  std::size_t rest = 0;
  for (std::size_t hit; (hit = text.find(delimiter, rest)) != std::string_view::npos; rest = hit + delimiter.size()) {
    parts.emplace_back(text.substr(rest, hit - rest));
  }
  parts.emplace_back(text.substr(rest));
  return parts;
}

void texts(const std::string& size, const std::string& text) {
  const zkstring own = mine(text);
  measure("lower, " + size, ours, [own]() mutable { return TextFunctions::lower(opaque(own)); });
  measure("lower, " + size, "std::string", [text]() mutable { return lower(opaque(text)); });

  const std::string padded = std::string(text.size() / 10, ' ') + text + std::string(text.size() / 10, '\n');
  measure("trim, " + size, ours, [own = mine(padded)]() mutable { return TextFunctions::trim(opaque(own)); });
  measure("trim, " + size, "std::string_view", [padded]() mutable { return trim(opaque(padded)); });

  for (const char* to : {";", "; "}) {
    const std::string name = "replace by " + std::to_string(std::string_view(to).size()) + ", " + size;
    measure(name, ours, [own, from = zkstring(","), by = zkstring(to)]() mutable {
      return TextFunctions::replace(opaque(own), from, by);
    });
    measure(name, "std::string", [text, to]() mutable { return replace(opaque(text), ",", to); });
  }

  measure("split, " + size, ours,
          [own, comma = zkstring(",")]() mutable { return TextFunctions::split(comma, opaque(own)); });
  measure("split, " + size, "vector<std::string>", [text]() mutable { return split<std::string>(",", opaque(text)); });
  measure("split, " + size, "vector<std::string_view>",
          [text]() mutable { return split<std::string_view>(",", opaque(text)); });
}

const bool registered = [] {
  texts("100 bytes", words(100));
  texts("10 KB", words(10240));
  return true;
}();
}  // namespace
