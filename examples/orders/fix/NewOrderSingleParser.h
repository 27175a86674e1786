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
  void parseBody(zarvik::DataObject& body, Tokenizer& tokenizer) override;
  void checkBody(zarvik::DataObject& body) override;
};

}  // namespace orders
