#pragma once

#include <string>

/// QuickFIX on FIX messages: `setString` without validation, and ten typed values of each message. Its headers are
/// older than the language of all else here, so they are seen by one source alone.
namespace quickfix {

int parse(const std::string& message);          ///< gives the number of fields
int parseHeader(const std::string& message);    ///< the header alone
double readOrder(const std::string& message);   ///< the sum of what was read
double readReport(const std::string& message);  ///< the same
std::string writeOrder();                       ///< the order of the benchmark, from typed fields

}  // namespace quickfix
