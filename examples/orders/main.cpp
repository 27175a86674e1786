// A hand-written record at work: fills an order through its typed accessors, and prints it without knowing its class.
#include <cstdio>

#include "orders/Instrument.h"
#include "orders/Leg.h"
#include "orders/Order.h"
#include "orders/Party.h"

using namespace zarvik;

namespace {

void fill(orders::Order& order) {
  const DateTime now(2024, 2, 29, 13, 45, 10, 250);
  order.setID("A&B-7");
  order.setQuantity(1200);
  order.setSequence(9007199254740993);
  order.setDiscount(0.5F);
  order.setPrice(101.375);
  order.setSide('B');
  order.setUrgent(true);
  order.setSignature(Binary::fromHexString("00FF7A"));
  order.setAccount(BigInteger("123456789012345678901234567890"));
  order.setNotional(BigDecimal("121650.000000000000000001"));
  order.setEntered(now);
  order.setTradeDate(now);
  order.setCutOff(now);
  order.setSent(now);
  order.setSettlement(now);
  // MarketClose stays null, and so stays out of the text.
  order.getInstrument()->setSymbol("ZARV");
  order.getInstrument()->setMaturity(DateTime(2030, 6, 30, 0, 0, 0, 0));
  for (const char* const symbol : {"ZARV-1", "ZARV-2"}) {
    orders::Leg* const leg = order.addLeg();
    leg->setSymbol(symbol);
    leg->setRatio(1);
    leg->addParty()->setID("broker <1>");
  }
}

void print(const zkstring& text) { std::fwrite(text.data(), 1, text.length(), stdout); }
}  // namespace

int main() {
  const SmartPtr<orders::Order> order(new orders::Order);
  fill(*order);
  DataObject* const record = order.get();
  print(record->toXMLString());
  print("Price: " + record->getFieldVal("Price")->toString() + "\n");
  print("Second leg: " + record->getSection("Legs")->getElement(1)->getFieldVal("Symbol")->toString() + "\n");
  record->getSection("Legs")->assertConstraints();
}
