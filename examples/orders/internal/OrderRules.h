#pragma once

#include "BusinessProcessingRules.h"
#include "ValidationRules.h"
#include "orders/Checks.h"

namespace orders {

/// Fills in what may be left out of an order: it is not urgent, and traded on the day on which it was entered.
class OrderPreprocessing : public zarvik::BusinessProcessingRules {
 protected:
  using BusinessProcessingRules::process;
  void process(zarvik::DataObject* object) override;
};

/// Says what a valid order is.
class OrderValidation : public Checks<zarvik::ValidationRules> {
 protected:
  using ValidationRules::validate;
  void validate(zarvik::DataObject* object) override;
};

/// Computes the notional amount of an order with a price.
class OrderPostprocessing : public zarvik::BusinessProcessingRules {
 protected:
  using BusinessProcessingRules::process;
  void process(zarvik::DataObject* object) override;
};

}  // namespace orders
