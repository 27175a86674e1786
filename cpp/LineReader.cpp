#include "LineReader.h"

#include <algorithm>
#include <cstring>

#include "InputSource.h"

namespace zarvik {
namespace {

/// The bytes of `source`, copied, since a source may go before its reader.
zkstring bytesOf(InputSource& source) {
  int length = 0;
  const char* const bytes = source.getAsBytes(length);
  return zkstring(bytes, static_cast<unsigned int>(length));
}

unsigned int countOfLineEnds(const zkstring& data) {
  return static_cast<unsigned int>(std::count(data.data(), data.data() + data.length(), '\n'));
}
}  // namespace

LineReader::LineReader(InputSource& source, bool hasTrailer) : hasTrailer(hasTrailer) { split(bytesOf(source)); }

LineReader::LineReader(const Binary& bytes, bool hasTrailer) : hasTrailer(hasTrailer) { split(bytes.toString()); }

LineReader::LineReader(const char* bytes, int length, bool hasTrailer) : hasTrailer(hasTrailer) {
  split(zkstring(bytes, static_cast<unsigned int>(length)));
}

void LineReader::split(const zkstring& data) {
  constexpr unsigned int unended = 1;
  constexpr unsigned int sentinels = 2;
  // All room at once: the list grows in small steps.
  lines.reserve(std::max(15U, countOfLineEnds(data) + unended + sentinels));

  unsigned int start = 0;
  while (const void* const found = std::memchr(data.data() + start, '\n', data.length() - start)) {
    const auto end = static_cast<unsigned int>(static_cast<const char*>(found) - data.data());
    const bool behindCarriageReturn = end > start && data[end - 1] == '\r';
    lines.push_back(data.substr(start, end - start - (behindCarriageReturn ? 1 : 0)));
    start = end + 1;
  }
  if (start != data.length()) lines.push_back(data.substr(start));

  if (hasTrailer && lines.size() > 0) {
    trailerLine = lines.top();
    lines.pop_back();
  }
  lineCount = static_cast<int>(lines.size());
  for (unsigned int i = 0; i < sentinels; ++i) lines.push_back({});
}

}  // namespace zarvik
