#pragma once

#include <iosfwd>
#include <map>
#include <string>

#include "FixIdentifier.h"
#include "MessageRouter.h"
#include "Progress.h"
#include "RejectFile.h"

namespace route {

/// Hands lines to a router, prints what became of each, keeps the refused ones, and counts.
class Host {
 public:
  Host(const std::string& rejectFile, bool quiet);

  /// Takes every line of `input`; `name` is how the output calls it. Throws std::system_error when reading fails.
  void takeAll(std::istream& input, const std::string& name);
  void printSummary();

 private:
  void take(const std::string& line, const std::string& origin);
  void reject(long& count, const std::string& reason, const std::string& line, const std::string& origin);

  RejectFile rejects;
  std::string rejectFileName;
  bool quiet;
  Progress progress;
  FixIdentifier* identifier;  ///< belongs to the router's service
  zarvik::MessageRouter router;

  std::map<std::string, long> routed;  ///< by row
  long messages = 0;
  long unrecognised = 0;
  long unhandled = 0;
  long failed = 0;
};

}  // namespace route
