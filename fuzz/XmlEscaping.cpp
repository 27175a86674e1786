// The escapes of XML text against a second formulation, character by character, and back again.
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

#include "DataObjectXML.h"

namespace {

std::string escaped(const std::string& text) {
  static const std::map<char, std::string> names = {{'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"},
                                                    {'\t', "\t"},  {'\n', "\n"},  {'\r', "\r"}};
  std::string out;
  for (const char c : text) {
    const int value = c & 0x80 ? (c & 0xFF) - 256 : c;
    const auto name = names.find(c);
    out += name != names.end() ? name->second : value < 32 ? "&#" + std::to_string(value) + ";" : std::string(1, c);
  }
  return out;
}

/// What an escaped text was made of.
std::string unescaped(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '&') {
      out += text[i];
      continue;
    }
    const std::size_t end = text.find(';', i);
    if (end == std::string::npos) std::abort();
    const std::string name = text.substr(i + 1, end - i - 1);
    out += name == "lt" ? '<' : name == "gt" ? '>' : name == "amp" ? '&' : static_cast<char>(std::stoi(name.substr(1)));
    i = end;
  }
  return out;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const zarvik::zkstring result =
      zarvik::DataObjectXML::fixXMLCharData(zarvik::zkstring(text.data(), static_cast<unsigned int>(size)));
  const std::string actual(result.data(), result.length());
  if (actual != escaped(text) || unescaped(actual) != text) std::abort();
  return 0;
}
