#pragma once

#include <string>
#include <vector>

namespace route {

struct Options {
  std::vector<std::string> inputs;  ///< file names; "-" is standard input
  std::string rejectFile = "route.rejects";
  std::string outputFolder = "route.out";
  bool collect = false;
  bool show = false;
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
