#pragma once

#include <chrono>
#include <iosfwd>
#include <map>
#include <string>

#include "Collector.h"
#include "MessageRouter.h"
#include "Options.h"
#include "Outputs.h"
#include "Progress.h"
#include "RejectFile.h"

namespace route {

/// Hands lines to a router, prints what became of each, keeps the refused ones, and counts.
class Host {
 public:
  explicit Host(const Options& options);

  /// Takes every line of `input`; `name` is how the output calls it. Throws std::system_error when reading fails.
  void takeAll(std::istream& input, const std::string& name);
  /// Throws std::system_error when the outputs could not all be written.
  void printSummary();

 private:
  using Clock = std::chrono::steady_clock;

  void take(const std::string& line, const std::string& origin);
  void reject(const char* what, const Errors& errors, const std::string& line, const std::string& origin);

  const Options options;
  RejectFile rejects;
  Progress progress;
  Outputs outputs;
  zarvik::MessageRouter router;
  Collector collector;

  std::map<std::string, long> routed;    ///< by row
  std::map<std::string, long> rejected;  ///< by kind
  long messages = 0;
  const Clock::time_point start = Clock::now();
};

}  // namespace route
