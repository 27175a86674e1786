#pragma once

#include "orders/fix/MessageParser.h"

namespace orders {

class ExecutionReport;
class Leg;

/// Reads an execution report.
class ExecutionReportParser : public MessageParser {
 public:
  using MessageParser::MessageParser;

 protected:
  zarvik::DataObject* createBody() const override;
  void parseBody(zarvik::DataObject& body, Tokenizer& tokenizer) override;
  void checkBody(zarvik::DataObject& body) override;

 private:
  void takeLegs(Group<Leg>& legs, Field& field, Tokenizer& tokenizer);
};

}  // namespace orders
