#pragma once

#include "IInputFormat.h"
#include "zkstring.h"

namespace route {

/// Reads every field of a FIX message and puts their number into the context. It stands where the formats of a
/// cartridge would parse, validate and hand on.
class CountingFormat : public zarvik::IInputFormat {
 public:
  static const zarvik::zkstringliteral FIELDS_PROPERTY;

  /// Null: this format makes no objects, and the router asks for none.
  zarvik::DataObject* handleInput(zarvik::InputSource& /*source*/, zarvik::TransformContext& /*context*/) override {
    return nullptr;
  }
  /// Throws zarvik::FieldParsingException for a garbled field.
  void processInput(zarvik::InputSource& source, zarvik::TransformContext& context) override;
};

}  // namespace route
