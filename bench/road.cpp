// An order's road through the cartridge of examples/orders, whole and by stage; and what the parser and the writer of
// the cartridge do alone, beside QuickFIX where that is there.
#include <algorithm>
#include <string>

#include "AbstractInputFormat.h"
#include "AbstractOutputFormat.h"
#include "ByteArrayInputSource.h"
#include "IOutputContext.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "TransformContext.h"
#include "fix/FIXMessageIdentifier.h"
#include "orders/Cartridge.h"
#include "orders/Names.h"
#include "orders/Order.h"
#include "orders/fix/FIXFormats.h"
#include "support/Subject.h"
#ifdef ZARVIKRT_QUICKFIX
#include "support/QuickFixOrders.h"
#endif

using namespace zarvik;
using namespace orders;

namespace {

constexpr char order44[] =
    "8=FIX.4.4|9=253|35=D|34=1092|49=BUYSIDE01|52=20240614-07:40:42.123|56=BROKER0123|50=TRADER7|57=DESK12|"
    "11=ORD-20240614-000123|1=10912000000000000007|21=1|55=MSFT|48=US5949181045|22=4|54=1|60=20240614-07:40:42.120|"
    "38=1500|40=2|44=425.25|15=USD|59=0|528=A|167=CS|207=XNAS|10=082|";
constexpr char report44[] =
    "8=FIX.4.4|9=361|35=8|34=2077|49=BROKER0123|52=20240614-07:40:42.131|56=BUYSIDE01|50=DESK12|57=TRADER7|"
    "37=EX-884213-7|11=ORD-20240614-000123|17=E-20240614-55120|150=F|39=1|1=100000912|55=MSFT|48=US5949181045|22=4|"
    "54=1|38=1500|40=2|44=425.25|15=USD|59=0|528=A|32=300|31=425.24|151=1200|14=300|6=425.24|"
    "60=20240614-07:40:42.130|30=XNAS|207=XNAS|12=1.5|58=Partial fill of an order|10=106|";

std::string wire(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\x01');
  return text;
}

Binary binary(const std::string& text) { return Binary(text.data(), static_cast<unsigned int>(text.size())); }

/// A message that is parsed again and again into the same record, and written from it.
template <class Kind>
class Message {
 public:
  explicit Message(const char* text) : bytes(binary(wire(text))) { parse(); }

  const typename Kind::Body& parse() {
    object->reset();
    parser.parse(object.get(), bytes, context);
    return static_cast<const typename Kind::Body&>(*object->getData());
  }
  zkstring write() { return writer.writeExternal(*object, context); }

 private:
  Binary bytes;
  TransformContext context;
  typename Kind::Parser parser{Version::FIX44};
  typename Kind::Writer writer{Version::FIX44};
  SmartPtr<ExternalObject> object = createMessage<Kind>();
};

/// The stations of the road, each with what it needs from the ones before.
class Road {
 public:
  Road() : source(binary(wire(order44))) {
    static const bool installed = (install("."), true);
    (void)installed;
    addRows(router);
    registry = LookupContextFactory::getLookupContext();
    input = registry->lookupInputFormat("NewOrderSingle44In");
    output = registry->lookupOutputFormat("NewOrderSingle42Out");
    internal = registry->lookupInternalMessage(ORDER_MESSAGE);
    context.createOutputContext();
    order = input->handleInput(source, context);
    context.putAll(router.getMessageConfiguration(source)->getContextProperties());
    context.setProperty(SENDER_PROPERTY, "HOUSE");
    context.setProperty(TARGET_PROPERTY, "STREET");
  }

  bool identify() {
    const SmartPtr<DataObject> header(identifier.identifyMessage(source));
    return !header.isNull();
  }
  const void* route() { return router.getMessageConfiguration(source); }
  const void* parse() {
    order->reset();
    static_cast<AbstractInputFormat&>(*input).parseInput(source, order.get(), context);
    return order.get();
  }
  const void* validate() {
    internal->preprocess(order, context);
    internal->validate(order, context);
    return internal->postprocess(order, context).get();
  }
  int write() {
    context.getOutputContext()->clear();
    output->write(order.get(), context);
    return context.getOutputContext()->getOutputCount();
  }
  int handle() {
    context.getOutputContext()->clear();
    internal->handleNormalizedObject(order.get(), context);
    return context.getOutputContext()->getOutputCount();
  }
  int whole() {
    context.getOutputContext()->clear();
    router.processMessage(source, context);
    return context.getOutputContext()->getOutputCount();
  }

 private:
  ByteArrayInputSource source;
  TransformContext context;
  FIXMessageIdentifier identifier;
  MessageRouter router;
  SmartPtr<ILookupContext> registry;
  SmartPtr<IInputFormat> input;
  SmartPtr<IOutputFormat> output;
  SmartPtr<IInternalMessage> internal;
  SmartPtr<DataObject> order;
};

const bool registered = [] {
  const char* const parseOrder = "parse an order into its record";
  const char* const parseReport = "parse an execution report into its record";
  const char* const writeOrder = "write an order from its record";
  static Message<NewOrderSingleKind> order(order44);
  static Message<ExecutionReportKind> report(report44);
  measure(parseOrder, ours, [] { return order.parse().getSide(); });
  measure(parseReport, ours, [] { return report.parse().getSide(); });
  measure(writeOrder, ours, [] { return order.write(); });
#ifdef ZARVIKRT_QUICKFIX
  const char* const peer = "QuickFIX";
  measure(parseOrder, peer, [text = wire(order44)] { return quickfix::readOrder(text); });
  measure(parseReport, peer, [text = wire(report44)] { return quickfix::readReport(text); });
  measure(writeOrder, peer, [] { return quickfix::writeOrder(); });
#endif

  static Road road;
  const auto alone = [] { return order.parse().getSide() + static_cast<int>(order.write().length()); };
  const auto stage = [&](const char* subject, auto work) {
    measure(subject, ours, work);
    measure(subject, "parsing and writing alone", alone);
  };
  stage("the whole road", [] { return road.whole(); });
  stage("identify", [] { return road.identify(); });
  stage("identify and route", [] { return road.route(); });
  stage("parse and map", [] { return road.parse(); });
  stage("preprocess, validate, postprocess", [] { return road.validate(); });
  stage("map and write to memory", [] { return road.write(); });
  stage("rules, trigger, map and write", [] { return road.handle(); });
  return true;
}();
}  // namespace
