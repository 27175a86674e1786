#pragma once

#include <string>

#include "MessageIdentifier.h"

namespace route {

/// Knows FIX messages by their frame, and remembers why it refused the last input.
class FixIdentifier : public zarvik::MessageIdentifier {
 public:
  zarvik::DataObject* identifyMessage(zarvik::InputSource& source) override;

  const std::string& getProblem() const { return problem; }  ///< empty if the last input was recognised

 private:
  std::string problem;
};

}  // namespace route
