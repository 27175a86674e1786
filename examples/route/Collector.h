#pragma once

#include <map>
#include <vector>

#include "ExceptionDataObject.h"
#include "IExternalMessage.h"
#include "IInputFormat.h"
#include "IInternalMessage.h"
#include "SmartPtr.h"

namespace zarvik {
class MessageRouter;
}

namespace route {

using Errors = std::vector<zarvik::SmartPtr<zarvik::ExceptionDataObject>>;

/// Finds all errors of a message, where processing stops at the first: each step runs in the form that collects, and
/// the next one runs as long as there is an object to go on with. Nothing is written.
class Collector {
 public:
  explicit Collector(zarvik::MessageRouter& router) : router(router) {}

  /// The errors of a message of the cartridge; none for those that it does not know. A message that the router does not
  /// take throws what the router throws.
  Errors errorsOf(zarvik::InputSource& source, zarvik::TransformContext& context);

 private:
  /// The services of one message; they are made once.
  struct Services {
    zarvik::SmartPtr<zarvik::IExternalMessage> message;
    zarvik::SmartPtr<zarvik::IInputFormat> inputFormat;
    zarvik::SmartPtr<zarvik::IInternalMessage> normalised;
  };
  Services& servicesOf(const zarvik::zkstring& messageName);

  zarvik::MessageRouter& router;
  std::map<zarvik::zkstring, Services> services;
};

}  // namespace route
