#include "MessageFormatter.h"

#include <algorithm>

#include "Conversion.h"
#include "Exceptions.h"
#include "ObjectList.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

constexpr unsigned int notFound = ~0U;

/// What `v_atoi` reads, or -1 where it would fail; whatever else is no number costs no exception.
int argumentNumber(const char* begin, const char* end) {
  const char* const digits = begin != end && (*begin == '-' || *begin == '+') ? begin + 1 : begin;
  const bool isNumber = begin != end && std::all_of(digits, end, [](char c) { return c >= '0' && c <= '9'; });
  if (!isNumber) return -1;
  try {
    return v_atoi(begin, end);
  } catch (const TransformException&) {
    return -1;
  }
}

zkstring textOf(const Object* argument) { return argument != nullptr ? argument->toString() : zkstringliteral("null"); }
}  // namespace

zkstring MessageFormatter::format(const zkstring& pattern, const ObjectList& arguments) {
  const int count = arguments.size();
  const char* const begin = pattern.data();
  const unsigned int length = pattern.length();
  zkstringbuffer text;
  text.reserve(length);
  unsigned int brace = 0;  // the next closing brace, searched for once and not for each opening one
  for (unsigned int i = 0; i < length; ++i) {
    if (begin[i] == '{') {
      if (brace <= i) brace = pattern.find('}', i);
      const int number = brace != notFound ? argumentNumber(begin + i + 1, begin + brace) : -1;
      if (number >= 0 && number < count) {
        text.append(textOf(arguments.at(number)));
        i = brace;
        continue;
      }
    } else if (begin[i] == '\'' && i + 1 < length && begin[i + 1] == '\'') {
      ++i;
    }
    text.append(begin[i]);
  }
  return text;
}

}  // namespace zarvik
