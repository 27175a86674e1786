#pragma once

#include <string>

#include "BusinessTransactionWrapper.h"
#include "orders/internal/OrderMessage.h"

namespace route {

/// A message as a person reads it: '|' between the fields, no line end behind it; other bytes that no text has become
/// '?'.
std::string readable(std::string_view bytes);

/// The cartridge's order, which also leaves its normalised form, as XML, in the context, for hosts that show it.
class ShownOrder : public zarvik::BusinessTransactionWrapper {
 public:
  inline static constinit const zarvik::zkstringliteral XML_PROPERTY = "route.normalised";

  ShownOrder() : BusinessTransactionWrapper(&order) {}
  void handleNormalizedObject(zarvik::DataObject* object, zarvik::TransformContext& context) override;

 private:
  orders::OrderMessage order;
};

/// Prints what a message has become: the normalised order if there is one, and all outputs that the context collected.
void showOutputs(zarvik::TransformContext& context);

}  // namespace route
