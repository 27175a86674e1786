#include "orders/fix/Mapping.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "Exceptions.h"
#include "Parsing.h"
#include "ThrowFrom.h"
#include "TransformContext.h"
#include "fix/FIXType.h"
#include "orders/Execution.h"
#include "orders/Instrument.h"
#include "orders/Names.h"

using namespace zarvik;

namespace orders {
namespace {

constexpr char here[] = "examples/orders/fix/Mapping";

/// A code of FIX and what the house calls it.
struct Code {
  char fix, house;
};
constexpr Code sides[] = {{'1', 'B'}, {'2', 'S'}, {'5', 'H'}};
constexpr Code urgencies[] = {{'0', 'N'}, {'3', 'Y'}};  // TimeInForce: for the day, or immediate or cancel

constexpr char marketOrder = '1';
constexpr char limitOrder = '2';
constexpr char automated = '1';    // HandlInst: without a dealer
constexpr char newReport = '0';    // ExecTransType
constexpr char partialFill = '1';  // ExecType of FIX 4.2
constexpr char fill = '2';
constexpr char trade = 'F';                               // ExecType of FIX 4.4 for both, and the house's
constexpr std::string_view otherKinds = "03456789ABCDE";  // ExecType of both versions, and the house's
constinit const zkstringliteral isinSource = "4";

[[noreturn]] void throwNotSupported(const char* field, char code) {
  throwFrom(here, FieldParsingException(zkstring(field) + " '" + zkstring(1, code) + "' is not supported", field));
}

template <int count>
char translate(const Code (&codes)[count], char Code::*from, char Code::*to, char wanted, const char* field) {
  const auto* const found =
      std::find_if(std::begin(codes), std::end(codes), [&](const Code& code) { return code.*from == wanted; });
  if (found == std::end(codes)) throwNotSupported(field, wanted);
  return found->*to;
}

/// An order is written as limit order when it has a price, and as market order otherwise.
template <class Message>
void ensureTypeOfPrice(const Message& message) {
  if (message.isNull(Message::ORD_TYPE)) return;
  const bool hasPrice = message.isNotNull(Message::PRICE);
  if (message.getOrdType() == (hasPrice ? limitOrder : marketOrder)) return;
  if (message.getOrdType() != (hasPrice ? marketOrder : limitOrder)) throwNotSupported("OrdType", message.getOrdType());
  throwFrom(here,
            FieldParsingException(hasPrice ? "A market order has no Price" : "A limit order has a Price", "Price"));
}

/// The house knows instruments by their symbol and ISIN.
template <class Message>
void takeIsin(const Message& message, Instrument& instrument) {
  if (message.isNull(Message::SECURITY_ID)) return;
  const zkstring source = message.isNull(Message::SECURITY_ID_SOURCE) ? zkstring() : message.getSecurityIDSource();
  if (source != isinSource) {
    throwFrom(here, FieldParsingException("SecurityIDSource '" + source + "' is not supported", "SecurityIDSource"));
  }
  instrument.setISIN(message.getSecurityID());
}

char kindOf(Version version, char execType) {
  if (otherKinds.find(execType) != std::string_view::npos) return execType;
  const bool traded = version == Version::FIX42 ? execType == partialFill || execType == fill : execType == trade;
  if (!traded) throwNotSupported("ExecType", execType);
  return trade;
}

char execTypeOf(Version version, const Execution& execution) {
  if (version == Version::FIX44 || execution.getKind() != trade) return execution.getKind();
  return execution.getOpen() == 0 ? fill : partialFill;
}

template <class T>
void copyElements(const Group<T>& source, Group<T>& target) {
  for (int i = 0; i < source.getElementCount(); ++i) target.addElement(new T(source.at(i), &target));
}

BigInteger accountNumber(const zkstring& text) {
  if (!std::all_of(text.data(), text.data() + text.length(), Parsing::isNumericalDigit)) {
    throwFrom(here, FieldParsingException("Account '" + text + "' is not a number", "Account"));
  }
  if (text.length() > 1 && text[0] == '0') {  // another account than the number says
    throwFrom(here, FieldParsingException("Account '" + text + "' begins with a zero", "Account"));
  }
  return text;
}

/// What an order and a report of it have in common.
template <class Message>
void commonToOrder(const FIXHeader& header, const Message& message, Order& order) {
  order.setSequence(header.getMsgSeqNum());
  order.setSendingTime(FIXType::parseUTCTimestamp(header.getSendingTime()));
  if (message.isNotNull(Message::CL_ORD_ID)) order.setID(message.getClOrdID());
  if (message.isNotNull(Message::ACCOUNT)) order.setAccount(accountNumber(message.getAccount()));
  ensureTypeOfPrice(message);
  order.setSide(translate(sides, &Code::fix, &Code::house, message.getSide(), "Side"));
  if (message.isNotNull(Message::ORDER_QTY)) order.setQuantity(message.getOrderQty());
  if (message.isNotNull(Message::PRICE)) order.setPrice(message.getPrice());
  if (message.isNotNull(Message::CURRENCY)) order.setCurrency(message.getCurrency());
  if (message.isNotNull(Message::TIME_IN_FORCE)) {
    const char urgent = translate(urgencies, &Code::fix, &Code::house, message.getTimeInForce(), "TimeInForce");
    order.setUrgent(urgent == 'Y');
  }
  if (message.isNotNull(Message::TRANSACT_TIME)) order.setEntered(message.getTransactTime());
  if (message.isNotNull(Message::TRADE_DATE)) order.setTradeDate(message.getTradeDate());
  if (message.isNotNull(Message::SETTL_DATE)) order.setSettlement(message.getSettlDate());
  if (message.isNotNull(Message::TEXT)) order.setText(message.getText());
  if (message.isNotNull(Message::RAW_DATA)) order.setSignature(message.getRawData());
  Instrument* const instrument = order.getInstrument();
  instrument->setSymbol(message.getSymbol());
  if (message.isNotNull(Message::MATURITY_DATE)) instrument->setMaturity(message.getMaturityDate());
  takeIsin(message, *instrument);
  copyElements(message.getParties(), order.getParties());
}

template <class Message>
void commonFromOrder(Order& order, Version version, Message& message) {
  if (order.isNotNull(Order::ID)) message.setClOrdID(order.getID());
  if (order.isNotNull(Order::ACCOUNT)) message.setAccountNumber(order.getAccount());
  message.setSide(translate(sides, &Code::house, &Code::fix, order.getSide(), "Side"));
  if (order.isNotNull(Order::QUANTITY)) message.setOrderQty(order.getQuantity());
  message.setOrdType(order.isNotNull(Order::PRICE) ? limitOrder : marketOrder);
  if (order.isNotNull(Order::PRICE)) message.setPrice(order.getPrice());
  if (order.isNotNull(Order::CURRENCY)) message.setCurrency(order.getCurrency());
  if (order.isNotNull(Order::URGENT)) {
    message.setTimeInForce(translate(urgencies, &Code::house, &Code::fix, order.getUrgent() ? 'Y' : 'N', "Urgent"));
  }
  if (order.isNotNull(Order::ENTERED)) message.setTransactTime(order.getEntered());
  if (order.isNotNull(Order::TRADE_DATE)) message.setTradeDate(order.getTradeDate());
  if (order.isNotNull(Order::SETTLEMENT)) message.setSettlDate(order.getSettlement());
  if (order.isNotNull(Order::TEXT)) message.setText(order.getText());
  if (order.isNotNull(Order::SIGNATURE)) message.setRawData(order.getSignature());
  const Instrument& instrument = *order.getInstrument();
  message.setSymbol(instrument.getSymbol());
  if (instrument.isNotNull(Instrument::ISIN)) {
    message.setSecurityID(instrument.getISIN());
    message.setSecurityIDSource(isinSource);
  }
  if (version == Version::FIX42) return;  // what follows came with FIX 4.4
  if (instrument.isNotNull(Instrument::MATURITY)) message.setMaturityDate(instrument.getMaturity());
  copyElements(order.getParties(), message.getParties());
}
}  // namespace

void toOrder(const FIXHeader& header, Version /*version*/, const NewOrderSingle& message, Order& order) {
  commonToOrder(header, message, order);
  copyElements(message.getAllocs(), order.getPortions());
}

void toOrder(const FIXHeader& header, Version version, const ExecutionReport& message, Order& order) {
  commonToOrder(header, message, order);
  if (version == Version::FIX42 && message.getExecTransType() != newReport) {  // a correction would pass for a trade
    throwNotSupported("ExecTransType", message.getExecTransType());
  }
  Execution& execution = order.getExecutions().add();
  execution.setOrderID(message.getOrderID());
  execution.setExecutionID(message.getExecID());
  execution.setStatus(message.getOrdStatus());
  execution.setKind(kindOf(version, message.getExecType()));
  if (message.isNotNull(ExecutionReport::LAST_QTY)) execution.setLastQuantity(message.getLastQty());
  if (message.isNotNull(ExecutionReport::LAST_PX)) execution.setLastPrice(message.getLastPx());
  execution.setOpen(message.getLeavesQty());
  execution.setFilled(message.getCumQty());
  execution.setAveragePrice(message.getAvgPx());
  copyElements(message.getContraBrokers(), order.getPortions());
  copyElements(message.getLegs(), order.getLegs());
}

void fromOrder(const Order& order, Version version, const char* messageType, TransformContext& context,
               FIXHeader& header) {
  header.setBeginString(beginString(version));
  header.setMsgType(zkstring::static_string(messageType));
  const zkstring sender = context.getProperty(SENDER_PROPERTY);
  const zkstring target = context.getProperty(TARGET_PROPERTY);
  if (!sender.empty()) header.setSenderCompID(sender);  // the writer misses what is not there
  if (!target.empty()) header.setTargetCompID(target);
  header.setMsgSeqNum(static_cast<int>(order.getSequence()));
  header.setSendingTime(order.getSendingTime());
}

void fromOrder(Order& order, Version version, NewOrderSingle& message) {
  commonFromOrder(order, version, message);
  message.setHandlInst(automated);
  copyElements(order.getPortions(), message.getAllocs());
}

void fromOrder(Order& order, Version version, ExecutionReport& message) {
  commonFromOrder(order, version, message);
  const Execution& execution = order.getExecutions().at(order.getExecutions().getElementCount() - 1);
  message.setOrderID(execution.getOrderID());
  message.setExecID(execution.getExecutionID());
  message.setOrdStatus(execution.getStatus());
  message.setExecType(execTypeOf(version, execution));
  if (execution.isNotNull(Execution::LAST_QUANTITY)) message.setLastQty(execution.getLastQuantity());
  if (execution.isNotNull(Execution::LAST_PRICE)) message.setLastPx(execution.getLastPrice());
  message.setLeavesQty(execution.getOpen());
  message.setCumQty(execution.getFilled());
  message.setAvgPx(execution.getAveragePrice());
  copyElements(order.getPortions(), message.getContraBrokers());
  if (version == Version::FIX42) {
    message.setExecTransType(newReport);
  } else {
    copyElements(order.getLegs(), message.getLegs());
  }
}

}  // namespace orders
