// `split` and `replace` against a second formulation on standard strings: two bytes tell the lengths of the delimiter
// and of its replacement, which follow with the text behind; a third the limit.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "formula/TextFunctions.h"

using zarvik::StringList;
using zarvik::TextFunctions;
using zarvik::zkstring;

namespace {

zkstring zk(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }

std::vector<std::string> split(const std::string& delimiter, std::string text, int limit) {
  if (text.empty()) return {};
  if (delimiter.empty()) return {text};
  std::vector<std::string> parts;
  while (static_cast<int>(parts.size()) < limit) {
    const std::size_t hit = text.find(delimiter);
    parts.push_back(text.substr(0, hit));
    if (hit == std::string::npos) break;
    text.erase(0, hit + delimiter.size());
    if (text.empty()) {
      parts.push_back(text);
      break;
    }
  }
  return parts;
}

std::string replace(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; !from.empty() && (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

void check(bool holds) {
  if (!holds) std::abort();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3 || size > 4096) return 0;
  const std::string input(reinterpret_cast<const char*>(data) + 3, size - 3);
  const std::string from = input.substr(0, data[0] % 5);
  const std::string to = input.substr(from.size(), data[1] % 5);
  const std::string text = input.substr(from.size() + to.size());
  const int limit = static_cast<signed char>(data[2]);

  check(TextFunctions::replace(zk(text), zk(from), zk(to)) == zk(replace(text, from, to)));
  const StringList parts = TextFunctions::split(zk(from), zk(text), limit);
  const std::vector<std::string> expected = split(from, text, limit);
  check(parts.size() == static_cast<int>(expected.size()));
  for (int i = 0; i < parts.size(); ++i) check(parts.get(i) == zk(expected[static_cast<std::size_t>(i)]));
  return 0;
}
