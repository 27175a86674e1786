#include "FixIdentifier.h"

#include "FixHeader.h"
#include "LineSource.h"

namespace route {

zarvik::DataObject* FixIdentifier::identifyMessage(zarvik::InputSource& source) {
  const std::string_view message = bytesOf(source);
  Frame frame;
  problem = readFrame(message, frame);
  return problem.empty() ? new FixHeader(message, frame) : nullptr;
}

}  // namespace route
