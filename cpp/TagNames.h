#pragma once

#include "Conversion.h"
#include "DataObject.h"

namespace zarvik {

/// How errors name a field of a tag=value format: 'Symbol[55]', with the quotes.
inline zkstring quotedTag(const DataObject& object, int fieldIndex, int tag) {
  return "'" + object.getFieldName(fieldIndex) + "[" + intToString(tag) + "]'";
}

}  // namespace zarvik
