#pragma once

#include <array>
#include <string_view>

#include "DataObject.h"
#include "Frame.h"

namespace route {

/// The header of a FIX message as a record: its format, version and type, and who sent it to whom.
class FixHeader : public zarvik::DataObject {
 public:
  /// Copies what it keeps of `message`, whose frame is known to be sound.
  FixHeader(std::string_view message, const Frame& frame);

  zarvik::Object* getField(const zarvik::zkstring& name) const override;
  zarvik::zkstring toXMLString() override;

 private:
  static constexpr std::size_t fieldCount = 7;
  std::array<zarvik::zkstring, fieldCount> values;
};

}  // namespace route
