#pragma once

#include "AbstractOutputFormat.h"

namespace orders {

/// Writes normalised objects in the compact byte form.
class BytesOutput : public zarvik::AbstractOutputFormat {
 public:
  void write(zarvik::DataObject* input, zarvik::TransformContext& context) override;
  zarvik::OutputWriter* getOutputWriter() override { return nullptr; }
};

}  // namespace orders
