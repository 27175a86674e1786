// Names against patterns, by the filter and by the rule of tokens and back-track points.
#include "WildcardFilter.h"

#include <cstdint>
#include <cstdlib>
#include <string>

#include "../tests/WildcardRule.h"

/// The pattern ends at the first line end; the rest is the name. Both are short, since the rule may try every way to
/// place its literals.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  constexpr std::size_t longest = 48;
  const std::string input(reinterpret_cast<const char*>(bytes), size);
  const std::size_t end = input.find('\n');
  if (size > longest || end == std::string::npos) return 0;
  const std::string pattern = input.substr(0, end);
  const std::string name = input.substr(end + 1);
  const auto text = [](const std::string& bytesOf) {
    return zarvik::zkstring(bytesOf.data(), static_cast<unsigned int>(bytesOf.size()));
  };
  zarvik::WildcardFilter filter(text(pattern));
  if (filter.accept(text(name)) != WildcardRule(pattern).accepts(name)) std::abort();
  return 0;
}
