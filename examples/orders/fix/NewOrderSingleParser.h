#pragma once

#include "orders/fix/MessageParser.h"

namespace orders {

class NewOrderSingle;

/// Reads an order.
class NewOrderSingleParser : public MessageParser {
 public:
  using MessageParser::MessageParser;

 protected:
  zarvik::DataObject* createBody() const override;
  bool takeField(zarvik::DataObject& body, Field& field, Tokenizer& tokenizer) override;
  void checkBody(zarvik::DataObject& body) override;
};

}  // namespace orders
