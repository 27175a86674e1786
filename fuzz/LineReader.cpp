// Lines of foreign bytes, against a walk byte by byte.
#include "LineReader.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::vector<std::string> linesOf(const std::string& data) {
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t i = 0; i < data.size(); ++i) {
    const bool pair = data[i] == '\r' && i + 1 < data.size() && data[i + 1] == '\n';
    if (pair) ++i;
    if (data[i] == '\n') {
      lines.push_back(line);
      line.clear();
    } else {
      line += data[i];
    }
  }
  if (!data.empty() && data.back() != '\n') lines.push_back(line);
  return lines;
}

void check(bool holds) {
  if (!holds) std::abort();
}

bool same(const zarvik::zkstring& a, const std::string& b) { return std::string(a.data(), a.length()) == b; }
}  // namespace

/// The first byte says whether the last line is a trailer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  const bool hasTrailer = (bytes[0] & 1) != 0;
  const std::string data(reinterpret_cast<const char*>(bytes + 1), size - 1);
  std::vector<std::string> expected = linesOf(data);

  zarvik::LineReader reader(data.data(), static_cast<int>(data.size()), hasTrailer);
  if (hasTrailer && !expected.empty()) {
    check(same(reader.getTrailerLine(), expected.back()));
    expected.pop_back();
  } else {
    check(reader.getTrailerLine().empty());
  }
  for (const std::string& line : expected) {
    check(reader.hasMoreLines());
    check(same(reader.getNextLine(), line));
  }
  check(!reader.hasMoreLines());
  check(reader.getNextLine().empty() && reader.getNextLine().empty());
  return 0;
}
