#pragma once

#include "TagValueInputParser.h"

namespace zarvik {

/// The base of generated FIX parsers.
///
///     while (tokenizer.next(pair)) {
///       switch (pair.getTag()) {
///         case 55:
///           assertTagNew(order, Order::SYMBOL, 55);
///           order->setSymbol(pair.getValue());
///           break;
///         ...
///         default:  // the end of the group, or a tag that is in no place here
///           return tokenizer.pushBack(pair);
///       }
///     }
///
/// Body length and checksum are compared with nothing: tag 10 comes to generated code as a field like others.
class FIXInputParser : public TagValueInputParser {
 protected:
  FIXInputParser() = default;

  [[noreturn]] void throwDuplicateTagException(AbstractDataObject* object, int fieldIndex, int tag) const {
    throwDuplicateTag(object, fieldIndex, tag);
  }

 private:
  const char* source() const override { return "cpp/fix/FIXInputParser"; }
};

}  // namespace zarvik
