#include "orders/fix/MessageRules.h"

#include <algorithm>

#include "Parsing.h"
#include "fix/FIXHeader.h"
#include "orders/As.h"
#include "orders/fix/ExecutionReport.h"
#include "orders/fix/FIXTrailer.h"
#include "orders/fix/NewOrderSingle.h"

using namespace zarvik;

namespace orders {
namespace {

int quantityOf(const Portion& portion) { return portion.isNotNull(Portion::QUANTITY) ? portion.getQuantity() : 0; }
}  // namespace

void MessageRules::validateHeader0(DataObject* part) {
  auto* const header = &as<FIXHeader>(part);
  check(header->getBeginString() == beginString(version), "version", header, FIXHeader::BEGIN_STRING);
  check(header->getMsgType() == messageType, "message type", header, FIXHeader::MSG_TYPE);
  check(header->getSenderCompID() != header->getTargetCompID(), "two parties", header, FIXHeader::TARGET_COMP_ID);
}

void MessageRules::validateTrailer0(DataObject* part) {
  auto* const trailer = &as<FIXTrailer>(part);
  if (trailer->isNull(FIXTrailer::CHECK_SUM)) return;  // a message that is yet to be written
  const zkstring& sum = trailer->getCheckSum();
  const bool threeDigits =
      sum.length() == 3 && std::all_of(sum.data(), sum.data() + sum.length(), Parsing::isNumericalDigit);
  check(threeDigits, "three digits", trailer, FIXTrailer::CHECK_SUM);
}

void NewOrderSingleRules::validateData0(DataObject* /*header*/, DataObject* data) {
  auto* const order = &as<NewOrderSingle>(data);
  check(order->getOrderQty() > 0, "positive", order, NewOrderSingle::ORDER_QTY);
  check((order->getOrdType() == '2') == order->isNotNull(NewOrderSingle::PRICE), "limit orders have a price", order,
        NewOrderSingle::PRICE);
  __int64 left = order->getOrderQty();
  const Group<Portion>& allocations = order->getAllocs();
  const int count = allocations.getElementCount();
  for (int i = 0; i < count; ++i) left -= quantityOf(allocations.at(i));
  check(count == 0 || left == 0, "allocations make up the order", order, NewOrderSingle::ALLOCS);
}

void ExecutionReportRules::validateData0(DataObject* /*header*/, DataObject* data) {
  auto* const report = &as<ExecutionReport>(data);
  check(report->getCumQty() >= 0, "not negative", report, ExecutionReport::CUM_QTY);
  check(report->getLeavesQty() >= 0, "not negative", report, ExecutionReport::LEAVES_QTY);
  check(report->getCumQty() == 0 || report->getAvgPx() > 0, "what is filled has a price", report,
        ExecutionReport::AVG_PX);
}

}  // namespace orders
