#pragma once

#include "IInputFormat.h"

namespace route {

/// Takes messages that no cartridge knows, and passes them on as they are, to the output device that the context names.
class PlainFormat : public zarvik::IInputFormat {
 public:
  /// Null: this format makes no objects, and the router asks for none.
  zarvik::DataObject* handleInput(zarvik::InputSource& /*source*/, zarvik::TransformContext& /*context*/) override {
    return nullptr;
  }
  void processInput(zarvik::InputSource& source, zarvik::TransformContext& context) override;
};

}  // namespace route
