#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <numeric>
#include <random>
#include <set>
#include <sstream>

#include "ByteArrayOutputDevice.h"
#include "DataObjectIO.h"
#include "IOutputContext.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "StringInputSource.h"
#include "Support.h"
#include "TransformContext.h"
#include "orders/Installed.h"
#include "orders/Names.h"
#include "orders/Order.h"
#include "orders/fix/FIXFormats.h"

using namespace zarvik;
using namespace orders;

namespace {

zkstring zk(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }
std::string str(const zkstring& text) { return std::string(text.data(), text.length()); }
std::string soh(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\x01');
  return text;
}

/// The body with the frame around it: begin string, length and sum, counted here by the rules of FIX.
std::string framed(const std::string& version, const std::string& body) {
  const std::string text = soh("8=FIX." + version + "|9=" + std::to_string(body.size()) + "|") + body;
  char sum[12];
  std::snprintf(sum, sizeof sum, "10=%03d\x01",
                std::accumulate(text.begin(), text.end(), 0, [](int a, char c) { return a + (c & 0xff); }) % 256);
  return text + sum;
}

/// What stands between tag 9 and tag 10.
std::string bodyOf(const std::string& message) {
  const std::size_t start = message.find('\x01', message.find("\x01"
                                                              "9=") +
                                                     1) +
                            1;
  return message.substr(start, message.size() - start - 7);
}

/// Fills records with random values by their metadata.
class Filler {
 public:
  explicit Filler(std::set<std::string> absent) : absent(std::move(absent)) {}

  void fill(DataObject* record, int optionalPercent) {
    for (int i = 0; i < record->getFieldCount(); ++i) {
      const std::string type = str(record->getFieldType(i));
      if (absent.count(str(record->getFieldName(i))) != 0) continue;
      if (type == "Section") {
        fillSection(record->getSection(i));
      } else if (upTo(99) < optionalPercent) {
        setField(record, i, type);
      }
    }
  }

 private:
  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
  void fillSection(DataObjectSection* section) {
    for (int count = upTo(3); count > 0; --count) {
      DataObject* const element = section->createElement();
      section->addElement(element);
      fill(element, 100);
    }
  }
  void setField(DataObject* record, int index, const std::string& type) {
    const DateTime moment(1990 + upTo(60), 1 + upTo(11), 1 + upTo(27), upTo(23), upTo(59), upTo(59),
                          upTo(1) * upTo(999));
    if (type == "Integer") return record->setField(index, IntObject(upTo(1 << 30) - 1000));
    if (type == "Double") return record->setField(index, DoubleObject(upTo(1 << 30) / 10000.0));
    if (type == "Character") return record->setField(index, CharObject(static_cast<char>('!' + upTo(90))));
    if (type == "DateTime") return record->setField(index, DateObject(moment));
    if (type == "DateOnly") return record->setField(index, DateObject(DateTime(moment.getDatePortion(), Time())));
    std::string bytes(static_cast<std::size_t>(1 + upTo(30)), ' ');
    const bool anyByte = type == "Binary";  // SOH and '=' too
    for (char& c : bytes) c = static_cast<char>(anyByte ? upTo(255) : ' ' + upTo(90));
    if (anyByte) return record->setField(index, BinaryObject(Binary(zk(bytes))));
    record->setField(index, StringObject(zk(bytes)));
  }

  std::mt19937 random{20261121};
  std::set<std::string> absent;
};

/// What is written is framed right, reads back to the same record, and is written again to the same bytes.
template <class Kind, Version version>
void roundTrips(const std::set<std::string>& absent) {
  typename Kind::Parser parser(version);
  typename Kind::Writer writer(version);
  TransformContext context;
  Filler filler(absent);
  int written = 0;
  for (int round = 0; round < 300; ++round) {
    const SmartPtr<ExternalObject> message = createMessage<Kind>();
    auto& header = static_cast<FIXHeader&>(*message->getHeader());
    header.setBeginString(beginString(version));
    header.setMsgType(Kind::TYPE);
    header.setSenderCompID("A");
    header.setTargetCompID("B");
    header.setMsgSeqNum(round);
    header.setSendingTime("20261121-09:00:00");
    filler.fill(message->getData(), round % 2 == 0 ? 100 : 97);
    std::string text;
    try {
      text = str(writer.writeExternal(*message, context));
    } catch (const FIXWriterException&) {
      continue;  // a mandatory field was left out
    }
    ++written;
    ASSERT_EQ(text, framed(version == Version::FIX42 ? "4.2" : "4.4", bodyOf(text)));
    const SmartPtr<ExternalObject> copy(parser.parse(Binary(zk(text)), context));
    ASSERT_EQ(copy->getData()->toXMLString(), message->getData()->toXMLString());
    ASSERT_EQ(str(writer.writeExternal(*copy, context)), text);
  }
  EXPECT_GT(written, 200);
}

TEST(Orders, roundTrips) {
  const std::set<std::string> newIn44 = {"MaturityDate", "OrderCapacity", "Parties", "Legs"};
  roundTrips<NewOrderSingleKind, Version::FIX42>(newIn44);
  roundTrips<NewOrderSingleKind, Version::FIX44>({});
  roundTrips<ExecutionReportKind, Version::FIX42>(newIn44);
  roundTrips<ExecutionReportKind, Version::FIX44>({"ExecTransType"});
}

/// The cartridge installed, and a router with its rows.
class OrdersRoad : public testing::Test {
 protected:
  OrdersRoad() {
    std::filesystem::create_directories(outputFolder);
    ensureInstalled();
    addRows(router);
    context.createOutputContext();
    context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, "road/1");
  }
  ~OrdersRoad() noexcept override = default;
  void TearDown() override { std::filesystem::remove_all(outputFolder); }

  void process(const std::string& version, const std::string& body) {
    StringInputSource source(zk(framed(version, soh(body))));
    router.processMessage(source, context);
  }
  static std::string file(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(outputFolder / name, std::ios::binary).rdbuf();
    return text.str();
  }

  MessageRouter router;
  TransformContext context;
};

const std::string start = "35=D|49=A|56=B|34=7|52=20260310-14:32:36.135|";

TEST_F(OrdersRoad, writesAsFIXAndXMLAndBytes) {
  process("4.2",
          "35=8|49=A|56=B|34=7|52=20260310-14:32:36|37=V1|11=X1|17=E1|20=0|150=2|39=2|55=SAP.DE|54=5|38=20000|44=247.3|"
          "32=20000|31=247.3|151=0|14=20000|6=247.3|60=20260310-14:32:35|95=3|96=a|b|382=1|375=C|437=20000|");
  EXPECT_EQ(
      context.getOutputContext()->getOutputDevice(MEMORY)->getAsString(),
      framed("4.4", soh("35=8|49=HOUSE|56=STREET|34=7|52=20260310-14:32:36|37=V1|11=X1|17=E1|150=F|39=2|55=SAP.DE|54=5|"
                        "38=20000|40=2|44=247.3|59=0|32=20000|31=247.3|151=0|14=20000|6=247.3|75=20260310|"
                        "60=20260310-14:32:35|95=3|96=a|b|382=1|375=C|437=20000|")));
  const std::string xml = file("road_1.NOXMLOut");
  EXPECT_NE(xml.find("<Notional>4946000.0</Notional>"), std::string::npos) << xml;
  const SmartPtr<Order> copy(new Order);
  copy->getInstrument();  // the byte form reads a nested object only where there is one
  DataObjectIO::parse(copy.get(), Binary(zk(file("road_1.OrderBytesOut"))));
  EXPECT_EQ(str(copy->toXMLString()), xml);
}

TEST_F(OrdersRoad, messagesValidateByThemselves) {
  const SmartPtr<IMessage> message(LookupContextFactory::getLookupContext()->lookupMessage("NewOrderSingle44"));
  const std::string bytes =
      framed("4.2", soh(start + "11=X1|55=S|54=1|60=20260310-14:32:36|38=0|40=2|78=1|79=F|80=5|"));
  const SmartPtr<DataObject> object = message->parse(Binary(zk(bytes)), context);
  std::string fields;
  for (ExceptionDataObject* error : message->validate2(object, context).exceptions) {
    fields += str(error->getFFieldName()) + " ";
    delete error;
  }
  EXPECT_EQ(fields, "BeginString OrderQty Price Allocs ");
  EXPECT_EQ(str(message->serialize(object, context).toString()), bytes);
}
}  // namespace
