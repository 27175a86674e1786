// The formatter of messages against a second formulation on standard strings: the first byte tells the number of
// arguments, the next up to 8 bytes the last argument, the rest is the pattern.
#include "MessageFormatter.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "Exceptions.h"
#include "ObjectList.h"
#include "Parsing.h"

using zarvik::ObjectList;
using zarvik::zkstring;

namespace {

zkstring zk(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }

/// The number between the braces, or -1.
int numberOf(const std::string& text) {
  try {
    return zarvik::Parsing::parseInt(zk(text));
  } catch (const zarvik::TransformException&) {
    return -1;
  }
}

std::string format(const std::string& pattern, const std::vector<std::string>& arguments) {
  std::string result;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern.compare(i, 2, "''") == 0) {
      ++i;
    } else if (const std::size_t end = pattern.find('}', i); pattern[i] == '{' && end != std::string::npos) {
      const int number = numberOf(pattern.substr(i + 1, end - i - 1));
      if (number >= 0 && number < static_cast<int>(arguments.size())) {
        result += arguments[static_cast<std::size_t>(number)];
        i = end;
        continue;
      }
    }
    result += pattern[i];
  }
  return result;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || size > 4096) return 0;
  std::string input(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string last = input.substr(0, 8);
  const std::string pattern = input.substr(last.size());
  const std::vector<std::string> all{"first", "null", last};
  const std::vector<std::string> arguments(all.begin(), all.begin() + data[0] % 4);
  ObjectList list;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i == 1) {
      list.add(static_cast<zarvik::Object*>(nullptr));
    } else {
      list.add(zk(arguments[i]));
    }
  }
  if (zarvik::MessageFormatter::format(zk(pattern), list) != zk(format(pattern, arguments))) std::abort();
  return 0;
}
