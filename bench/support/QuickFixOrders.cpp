#include "QuickFixOrders.h"

#include <quickfix/FixFields.h>
#include <quickfix/Message.h>

namespace quickfix {
namespace {

template <class Field>
typename std::decay<decltype(std::declval<Field>().getValue())>::type get(const FIX::FieldMap& fields) {
  Field field;
  fields.getField(field);
  return field.getValue();
}

double worth(const std::string& text) { return static_cast<double>(text.size()); }
double worth(const FIX::UtcTimeStamp& time) { return time.getMillisecond(); }
double worth(double value) { return value; }

template <class... Fields>
double sum(const FIX::FieldMap& message) {
  double total = 0;
  const int each[] = {(total += worth(get<Fields>(message)), 0)...};
  (void)each;
  return total;
}
}  // namespace

int parse(const std::string& text) {
  FIX::Message message;
  message.setString(text, false);
  return message.getHeader().totalFields() + message.totalFields() + message.getTrailer().totalFields();
}

int parseHeader(const std::string& text) {
  FIX::Message message;
  message.setStringHeader(text);
  return message.getHeader().totalFields();
}

double readOrder(const std::string& text) {
  FIX::Message message;
  message.setString(text, false);
  return sum<FIX::MsgSeqNum>(message.getHeader()) +
         sum<FIX::ClOrdID, FIX::Symbol, FIX::Side, FIX::TransactTime, FIX::OrderQty, FIX::OrdType, FIX::Price,
             FIX::Currency, FIX::TimeInForce>(message);
}

double readReport(const std::string& text) {
  FIX::Message message;
  message.setString(text, false);
  return sum<FIX::OrderID, FIX::ExecID, FIX::ExecType, FIX::OrdStatus, FIX::LastQty, FIX::LastPx, FIX::LeavesQty,
             FIX::CumQty, FIX::AvgPx, FIX::TransactTime>(message);
}

std::string writeOrder() {
  FIX::Message order;
  FIX::Header& header = order.getHeader();
  header.setField(FIX::BeginString("FIX.4.4"));
  header.setField(FIX::MsgType("D"));
  header.setField(FIX::MsgSeqNum(1092));
  header.setField(FIX::SenderCompID("BUYSIDE01"));
  header.setField(FIX::SendingTime(FIX::UtcTimeStamp(7, 40, 42, 123, 14, 6, 2024), 3));
  header.setField(FIX::TargetCompID("BROKER0123"));
  header.setField(FIX::SenderSubID("TRADER7"));
  header.setField(FIX::TargetSubID("DESK12"));
  order.setField(FIX::ClOrdID("ORD-20240614-000123"));
  order.setField(FIX::Account("00912000000000000007"));
  order.setField(FIX::HandlInst('1'));
  order.setField(FIX::Symbol("MSFT"));
  order.setField(FIX::SecurityID("US5949181045"));
  order.setField(FIX::SecurityIDSource("4"));
  order.setField(FIX::Side('1'));
  order.setField(FIX::TransactTime(FIX::UtcTimeStamp(7, 40, 42, 120, 14, 6, 2024), 3));
  order.setField(FIX::OrderQty(1500));
  order.setField(FIX::OrdType('2'));
  order.setField(FIX::Price(425.25));
  order.setField(FIX::Currency("USD"));
  order.setField(FIX::TimeInForce('0'));
  order.setField(FIX::OrderCapacity('A'));
  order.setField(FIX::SecurityType("CS"));
  order.setField(FIX::SecurityExchange("XNAS"));
  std::string text;
  order.toString(text);
  return text;
}

}  // namespace quickfix
