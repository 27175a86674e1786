#pragma once

#include <string>
#include <vector>

namespace route {

struct Options {
  std::vector<std::string> inputs;  ///< file names; "-" is standard input
  std::string rejectFile = "route.rejects";
  bool quiet = false;
  bool help = false;
};

/// Throws UsageError for what it does not understand.
Options readOptions(int count, char** arguments);

struct UsageError {
  std::string text;
};

extern const char usage[];

}  // namespace route
