#include "WildcardFilter.h"

#include <algorithm>
#include <cstring>

namespace zarvik {
namespace {

constexpr unsigned int notFound = ~0U;
constexpr unsigned int notFixed = ~0U;

bool isWildcard(char c) { return c == '*' || c == '?'; }

/// Where the literal at `start` ends.
unsigned int endOfLiteral(const zkstring& pattern, unsigned int start) {
  while (start < pattern.length() && !isWildcard(pattern[start])) ++start;
  return start;
}

bool startsAt(const zkstring& name, unsigned int position, const zkstring& literal) {
  return position <= name.length() && literal.length() <= name.length() - position &&
         std::memcmp(name.data() + position, literal.data(), literal.length()) == 0;
}

/// How many bytes the wildcards from `from` on stand for, to the end of the pattern; notFixed if literals are among
/// them, or if the pattern ends with "*". Another "*" stands for nothing where no literal follows it.
unsigned int fixedTail(const zkstring& pattern, unsigned int from) {
  const char* const begin = pattern.data() + from;
  const char* const end = pattern.data() + pattern.length();
  if (begin != end && end[-1] == '*') return notFixed;
  if (!std::all_of(begin, end, isWildcard)) return notFixed;
  return static_cast<unsigned int>(std::count(begin, end, '?'));
}

/// Where `literal`, behind a "*", stands in `name` at or behind `from`: if `tail` bytes must follow it, in the one
/// place that leaves them, else as early as possible, which leaves the most to what follows. notFound if nowhere.
unsigned int placeOf(const zkstring& literal, const zkstring& name, unsigned int from, unsigned int tail) {
  if (from > name.length()) return notFound;
  if (tail == notFixed) return name.find(literal, from);
  const unsigned int needed = literal.length() + tail;
  if (name.length() - from < needed) return notFound;
  const unsigned int place = name.length() - needed;
  return startsAt(name, place, literal) ? place : notFound;
}
}  // namespace

bool WildcardFilter::accept(const zkstring& name) {
  unsigned int position = 0;  // in the name; "?" may lead it past the end
  unsigned int end = 0;
  for (unsigned int i = 0; i < pattern.length(); i = end) {
    end = endOfLiteral(pattern, i);
    if (end == i) {  // a wildcard
      if (pattern[i] == '?') ++position;
      ++end;
      continue;
    }
    const zkstring literal = pattern.substr(i, end - i);
    if (i == 0) {
      if (!startsAt(name, 0, literal)) return false;
    } else {
      position = pattern[i - 1] == '*' ? placeOf(literal, name, position, fixedTail(pattern, end)) : notFound;
      if (position == notFound) return false;
    }
    position += literal.length();
  }
  const bool openEnd = !pattern.empty() && pattern[pattern.length() - 1] == '*';
  return openEnd || position == name.length();
}

}  // namespace zarvik
