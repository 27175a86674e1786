#pragma once

#include "AbstractInternalMessage.h"
#include "orders/internal/OrderRules.h"
#include "orders/internal/OrderTriggers.h"

namespace orders {

/// The internal message that all orders and executions become: an Order with its rules and triggers.
class OrderMessage : public zarvik::AbstractInternalMessage {
 public:
  OrderMessage();

  zarvik::DataObject* createNormalizedObject() override;
  zarvik::Triggers* getTriggers() override { return &triggers; }

 private:
  OrderPreprocessing preprocessing;
  OrderValidation validation;
  OrderPostprocessing postprocessing;
  OrderTriggers triggers;
};

}  // namespace orders
