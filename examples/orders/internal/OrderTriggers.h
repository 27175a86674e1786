#pragma once

#include "TriggerContextImpl.h"
#include "Triggers.h"

namespace orders {

/// What is done with a valid order: each goes where its routing row sends it, a large one is filed as XML too, and an
/// execution in the compact byte form.
class OrderTriggers : public zarvik::Triggers {
 public:
  OrderTriggers();

 protected:
  void onNewMessage0(zarvik::DataObject* message, zarvik::TransformContext& context) override;
  void onBatchStart0(zarvik::TransformContext& /*context*/) override {}
  void onBatchEnd0(zarvik::TransformContext& /*context*/) override {}

 private:
  zarvik::TriggerContextImpl delivery, archive, journal;
};

}  // namespace orders
