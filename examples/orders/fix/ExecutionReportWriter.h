#pragma once

#include "orders/fix/MessageWriter.h"

namespace orders {

class Leg;

/// Writes an execution report.
class ExecutionReportWriter : public MessageWriter {
 public:
  using MessageWriter::MessageWriter;

  void writeData(zarvik::DataObject* data, zarvik::TransformContext& context) override;

 private:
  void appendLegs(const Group<Leg>& legs);
};

}  // namespace orders
