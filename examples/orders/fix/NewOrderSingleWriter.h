#pragma once

#include "orders/fix/MessageWriter.h"

namespace orders {

/// Writes an order.
class NewOrderSingleWriter : public MessageWriter {
 public:
  using MessageWriter::MessageWriter;

  void writeData(zarvik::DataObject* data, zarvik::TransformContext& context) override;
};

}  // namespace orders
