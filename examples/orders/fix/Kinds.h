#pragma once

#include "orders/fix/ExecutionReport.h"
#include "orders/fix/ExecutionReportParser.h"
#include "orders/fix/ExecutionReportWriter.h"
#include "orders/fix/MessageRules.h"
#include "orders/fix/NewOrderSingle.h"
#include "orders/fix/NewOrderSingleParser.h"
#include "orders/fix/NewOrderSingleWriter.h"

namespace orders {

// What the templates of FIXFormats.h need to know of a message.

struct NewOrderSingleKind {
  using Body = NewOrderSingle;
  using Parser = NewOrderSingleParser;
  using Writer = NewOrderSingleWriter;
  using Rules = NewOrderSingleRules;
  static constexpr const char* NAME = "NewOrderSingle";
  static constexpr const char* TYPE = "D";
};

struct ExecutionReportKind {
  using Body = ExecutionReport;
  using Parser = ExecutionReportParser;
  using Writer = ExecutionReportWriter;
  using Rules = ExecutionReportRules;
  static constexpr const char* NAME = "ExecutionReport";
  static constexpr const char* TYPE = "8";
};

}  // namespace orders
