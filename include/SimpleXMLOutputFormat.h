#pragma once

#include "AbstractOutputFormat.h"

namespace zarvik {

/// The output format that needs no generated code: writes a normalised object as its XML text. Bound as "NOXMLOut".
class SimpleXMLOutputFormat : public AbstractOutputFormat {
 public:
  SimpleXMLOutputFormat() = default;
  SimpleXMLOutputFormat(const SimpleXMLOutputFormat& other) = default;
  ~SimpleXMLOutputFormat() override = default;

  /// `object` is not null. What the device gets, and is told, is as in other formats; errors pass without a phase.
  void write(DataObject* object, TransformContext& context) override;
  OutputWriter* getOutputWriter() override { return nullptr; }
  Object* clone() const override { return new SimpleXMLOutputFormat(*this); }
};

}  // namespace zarvik
