#pragma once

#include "FieldsValidationRules.h"
#include "orders/Checks.h"
#include "orders/fix/Version.h"

namespace orders {

/// What is checked in the header and the trailer of all FIX messages: that the header is of this message, and that the
/// parties are two.
class MessageRules : public Checks<zarvik::FieldsValidationRules> {
 public:
  MessageRules(Version version, const char* messageType) : version(version), messageType(messageType) {}

 protected:
  void validateHeader0(zarvik::DataObject* header) override;
  void validateTrailer0(zarvik::DataObject* trailer) override;

 private:
  const Version version;
  const char* const messageType;
};

/// A limit order has a price, and the portions make up the order.
class NewOrderSingleRules : public MessageRules {
 public:
  using MessageRules::MessageRules;

 protected:
  void validateData0(zarvik::DataObject* header, zarvik::DataObject* data) override;
};

/// The quantities of a report fit each other.
class ExecutionReportRules : public MessageRules {
 public:
  using MessageRules::MessageRules;

 protected:
  void validateData0(zarvik::DataObject* header, zarvik::DataObject* data) override;
};

}  // namespace orders
