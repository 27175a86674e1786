#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <set>

#include "Support.h"
#include "fix/FIXText.h"
#include "orders/Cartridge.h"
#include "orders/Names.h"
#include "orders/Order.h"
#include "orders/fix/FIXFormats.h"

using namespace zarvik;
using namespace orders;

namespace {

/// What stands between tag 9 and tag 10.
std::string bodyOf(const std::string& message) {
  const std::size_t start = message.find('\x01', message.find(soh("|9=")) + 1) + 1;
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
    ASSERT_EQ(text, framed(version == Version::FIX42 ? "8=FIX.4.2|" : "8=FIX.4.4|", bodyOf(text)));
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

/// The cartridge with a router that has its rows.
class Road : public testing::Test {
 protected:
  Road() {
    [[maybe_unused]] static const bool installed = (install(folder.string()), true);
    addRows(router);
    context.createOutputContext();
    context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, "road/1");
  }
  ~Road() noexcept override = default;

  inline static const std::filesystem::path folder = std::filesystem::temp_directory_path() / "zarvikrt_orders_test";
  SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  MessageRouter router;
  TransformContext context;
};

TEST_F(Road, writesAsFIXAndXMLAndBytes) {
  StringInputSource source(zk(framed(
      "8=FIX.4.2|",
      soh("35=8|49=A|56=B|34=7|52=20260310-14:32:36|37=V1|11=X1|17=E1|20=0|150=2|39=2|55=SAP.DE|54=5|38=20000|44=247.3|"
          "32=20000|31=247.3|151=0|14=20000|6=247.3|60=20260310-14:32:35|95=3|96=a|b|382=1|375=C|437=20000|"))));
  std::filesystem::create_directories(folder);
  router.processMessage(source, context);
  EXPECT_EQ(context.getOutputContext()->getOutputDevice(MEMORY)->getAsString(),
            framed("8=FIX.4.4|",
                   soh("35=8|49=HOUSE|56=STREET|34=7|52=20260310-14:32:36|37=V1|11=X1|17=E1|150=F|39=2|55=SAP.DE|54=5|"
                       "38=20000|40=2|44=247.3|59=0|32=20000|31=247.3|151=0|14=20000|6=247.3|75=20260310|"
                       "60=20260310-14:32:35|95=3|96=a|b|382=1|375=C|437=20000|")));
  const auto file = [](const char* name) {
    std::ostringstream text;
    text << std::ifstream(folder / name, std::ios::binary).rdbuf();
    return text.str();
  };
  const std::string xml = file("road_1.NOXMLOut");
  EXPECT_NE(xml.find("<Notional>4946000.0</Notional>"), std::string::npos) << xml;
  const SmartPtr<Order> copy(new Order);
  copy->getInstrument();  // the byte form reads a nested object only where there is one
  DataObjectIO::parse(copy.get(), Binary(zk(file("road_1.OrderBytesOut"))));
  EXPECT_EQ(str(copy->toXMLString()), xml);
  std::filesystem::remove_all(folder);
}

TEST_F(Road, messagesValidateByThemselves) {
  const SmartPtr<IMessage> message(LookupContextFactory::getLookupContext()->lookupMessage("NewOrderSingle44"));
  const std::string bytes =
      framed("8=FIX.4.2|", soh("35=D|49=A|56=B|34=7|52=20260310-14:32:36.135|11=X1|55=S|54=1|60=20260310-14:32:36|38=0|"
                               "40=2|78=1|79=F|80=5|"));
  const SmartPtr<DataObject> object = message->parse(Binary(zk(bytes)), context);
  std::string fields;
  for (ExceptionDataObject* error : message->validate2(object, context).exceptions) {
    fields += str(error->getFFieldName()) + " ";
    delete error;
  }
  EXPECT_EQ(fields, "BeginString OrderQty Price Allocs ");
  EXPECT_EQ(str(message->serialize(object, context).toString()), bytes);
}

// Messages that pass, with a group, a group in a group, or a data field; '|' stands for SOH. Body length and checksum
// are for hosts to look at.
const std::string order42 =
    "8=FIX.4.2|9=0|35=D|49=A|56=B|34=7|52=20260310-14:32:36|11=X1|1=4711|21=1|55=SAP.DE|48=DE0007164600|22=4|54=1|"
    "60=20260310-14:32:36|38=90000|40=2|44=247.3|59=0|78=2|79=F|80=60000|79=G|80=30000|95=3|96=a=b|10=000|";
const std::string order44 =
    "8=FIX.4.4|9=0|35=D|49=A|56=B|34=7|52=20260310-14:32:36.135|11=X1|55=SAP.DE|54=1|60=20260310-14:32:36|38=100|40=2|"
    "44=247.3|453=1|448=P|447=D|452=1|9000=ours|10=000|";
const std::string report42 =
    "8=FIX.4.2|9=0|35=8|49=B|56=A|34=8|52=20260310-14:32:36|37=V1|11=X1|17=E1|20=0|150=1|39=6|55=SAP.DE|54=1|38=2|"
    "32=1|31=4.25|151=1|14=1|6=4.25|10=000|";
const std::string report44 =
    "8=FIX.4.4|9=0|35=8|49=B|56=A|34=8|52=20260310-14:32:36|37=V1|11=X1|17=E1|150=F|39=1|55=SWAP|541=20270310|54=1|"
    "38=2|32=1|31=4.25|151=1|14=1|6=4.25|555=2|600=NEAR|623=1|539=1|524=P|525=D|538=4|600=FAR|623=1|10=000|";

/// All of the output stays in memory.
class RoadInMemory : public Road {
 protected:
  RoadInMemory() { registry->rebind(FILES, new ContextOutputProtocol); }
  ~RoadInMemory() noexcept override { registry->rebind(FILES, files.get()); }

  static void process(MessageRouter& router, InputSource& source) {
    TransformContext context;
    context.createOutputContext();
    router.processMessage(source, context);
  }

  /// What the host learns of the message: class, phase, type and field of the error, as far as there are any, and the
  /// first line of its text.
  std::string errorOf(const std::string& message) {
    StringInputSource source(zk(soh(message)));
    try {
      process(router, source);
    } catch (const TransformException& error) {
      EXPECT_EQ(error.getSeverity(), "fatal");
      constexpr int fieldName = 5;
      const zkstring field = error.isNull(fieldName) ? zkstring() : error.getFFieldName();
      std::string told = str(classOf(error));
      told = told.substr(8, told.rfind("Exception") - 8);
      for (const zkstring& part : {error.getPhase(), error.getErrorType(), field}) {
        if (!part.empty()) told += ", " + str(part);
      }
      const std::string text = str(error.getMessage());
      return told + ": " + text.substr(0, text.find('\n'));
    }
    return "none";
  }

  const SmartPtr<Object> files = registry->lookup(FILES);
};

struct Row {
  const std::string& message;
  const char *replaced, *by;
  const char* error;
};

TEST_F(RoadInMemory, tellsWhatIsWrong) {
  const Row rows[] = {
      {order42, "8=FIX.4.2", "8=FOX.4.2", "UnrecognizedMessage: Unrecognized message format"},
      {order42, "8=FIX.4.2", "8=FIX.4.9", "UnhandledMessage: Cannot handle message <DataObject>"},
      {order42, "35=D", "35=Z", "UnhandledMessage: Cannot handle message <DataObject>"},
      {order42, "9=0", "9", "FIXParsing: [col 12] 'Name or value' can't be empty. Unable to parse tag=value of form 9"},
      {order42, "35=D|", "35=D|35=D|", "FieldParsing, Input: Duplicate Tag 'MsgType[35]'."},
      {order42, "34=7|", "", "FieldParsing, Input: Tag 'MsgSeqNum[34]' expected."},
      {order42, "34=7", "34=seven", "FIXParsing: [col 38] Cannot convert 'seven' to int"},
      {order42, "49=A|", "", "FieldParsing, Input: Tag 'SenderCompID[49]' expected."},
      {order42, "52=20260310-14:32:36|", "", "FieldParsing, Input: Tag 'SendingTime[52]' expected."},
      {order42, "52=20260310-14:32:36", "52=yesterday",
       "TransformRuntime, Input: Error parsing date string, expected pattern 'yyyyMMdd-HH:mm:ss' found "
       "'yesterday"},
      {order42, "56=B", "56=", "FieldParsing, Input, TargetCompID: Field 'TargetCompID' cannot be null."},
      {order42, "11=X1|", "", "FieldParsing, Input: Tag 'ClOrdID[11]' expected."},
      {order42, "21=1|", "", "FieldParsing, Input: Tag 'HandlInst[21]' expected."},
      {order42, "54=1", "54=", "FieldParsing, Input, Side: Field 'Side' cannot be null."},
      {order42, "54=1", "54=7", "FieldParsing, Input, Side: Side '7' is not supported"},
      {order42, "54=1", "54=11", "FieldParsing, Input: Cannot convert 11 to char"},
      {order42, "38=90000", "38=9e4", "Transform, Input: Cannot convert '9e4' to int"},
      {order42, "38=90000", "38=-", "FieldParsing, Input: Cannot convert '-' to int"},
      {order42, "38=90000", "38=4295057296", "FieldParsing, Input: Cannot convert '4295057296' to int"},
      {order42, "38=90000", "38=0",
       "Transform, Internal Message, Validation, Quantity: Validation 'positive' failed. Field 'Quantity' is "
       "not "
       "valid"},
      {order42, "44=247.3", "44=247,3", "Transform, Input: Cannot convert '247,3' to double"},
      {order42, "44=247.3", "44=1e309", "FieldParsing, Input, Price: Number '1e309' is too large"},
      {order42, "44=247.3", "44=247-3", "FieldParsing, Input, Price: Cannot convert '247-3' to double"},
      {order42, "40=2", "40=1", "FieldParsing, Input, Price: A market order has no Price"},
      {order42, "44=247.3|", "", "FieldParsing, Input, Price: A limit order has a Price"},
      {order42, "22=4|", "", "FieldParsing, Input, SecurityIDSource: SecurityIDSource '' is not supported"},
      {order42, "40=2", "40=3", "FieldParsing, Input, OrdType: OrdType '3' is not supported"},
      {order42, "59=0", "59=6", "FieldParsing, Input, TimeInForce: TimeInForce '6' is not supported"},
      {order42, "60=20260310-14", "60=20261310-14", "TransformRuntime, Input: Illegal date 2026-13-10"},
      {order42, "1=4711", "1=47X1", "FieldParsing, Input, Account: Account '47X1' is not a number"},
      {order42, "1=4711", "1=04711", "FieldParsing, Input, Account: Account '04711' begins with a zero"},
      {order42, "DE0007164600", "DE0007164601",
       "Transform, Internal Message, Validation, Instrument.ISIN: Validation 'check digit' failed. Field "
       "'Instrument.ISIN' is not valid"},
      {order42, "59=0", "59",
       "FIXParsing, Input: 'Name or value' can't be empty. Unable to parse tag=value of form 59"},
      {order42, "59=0", "=0", "Transform, Input: Cannot convert '' to int"},
      {order42, "59=0", "5x=0", "Transform, Input: Cannot convert '5x' to int"},
      {order42, "59=0", "99=0", "FIXParsing, Input: Unexpected tag 99"},
      {order42, "59=0|", "59=0||",
       "FIXParsing, Input: 'Name or value' can't be empty. Unable to parse tag=value of form "},
      {order42, "59=0", "453=1|448=P|447=D|452=1", "FIXParsing, Input: Unexpected tag 453"},
      {order42, "78=2", "78=3", "FieldParsing, Input: Tag '78' counts 3 elements, but there are 2"},
      {order42, "78=2", "78=1", "FieldParsing, Input: Tag '78' counts 1 elements, but there are 2"},
      {order42, "78=2", "78=", "Transform, Input: Cannot convert '' to int"},
      {order42, "78=2|", "78=0|", "FieldParsing, Input: Tag '78' counts 0 elements, but there are 2"},
      {order42, "79=F|80=60000", "80=60000|79=F", "FieldParsing, Input: Tag '78' counts 2 elements, but there are 0"},
      {order42, "80=60000", "80=60000|80=1", "FieldParsing, Input: Duplicate Tag 'Quantity[80]'."},
      {order42, "95=3", "78=0|95=3", "FieldParsing, Input: Duplicate section Tag '78'."},
      {order44, "453=1", "453=2", "FieldParsing, Input: Tag '453' counts 2 elements, but there are 1"},
      {order44, "452=1", "452=1|447=D", "FieldParsing, Input: Duplicate Tag 'Source[447]'."},
      {report44, "538=4", "538=", "FieldParsing, Input, Role: Field 'Role' cannot be null."},
      {report44, "623=1|539", "623=1|623=1|539", "FieldParsing, Input: Duplicate Tag 'Ratio[623]'."},
      {report44, "524=P", "524=P|555=1", "FieldParsing, Input: Tag '555' counts 2 elements, but there are 1"},
      {order42, "95=3", "95=2",
       "FIXParsing, Input: Blob type tag value pair has incorrect data length, character after the specified "
       "length is not the SOH character"},
      {order42, "95=3", "95=300", "FIXParsing, Input: Unexpected end of input while looking for data"},
      {order42, "95=3|", "95=3|58=abc|", "FieldParsing, Input: Tag '96' expected."},
      {order42, "96=a=b|", "", "FieldParsing, Input: Tag '96' expected."},
      {order42, "95=3|", "", "FIXParsing, Input: Unexpected tag 96"},
      {order42, "95=3|96=a=b", "95=0|96=", "FieldParsing, Input, RawData: Field 'RawData' cannot be null."},
      {order42, "95=3", "95=2147483647", "FIXParsing, Input: Unexpected end of input while looking for data"},
      {report44, "150=F", "150=H", "FieldParsing, Input, ExecType: ExecType 'H' is not supported"},
      {report42, "20=0", "20=1", "FieldParsing, Input, ExecTransType: ExecTransType '1' is not supported"},
      {report44, "150=F", "150=FF", "FieldParsing, Input: Cannot convert FF to char"},
      {report44, "37=V1", "20=0|37=V1", "FieldParsing, Input: Tag 'OrderID[37]' expected."},
      {order42, "10=000|", "", "FieldParsing, Input: Tag '10' expected."},
      {order42, "10=000|", "10=000|10=000|", "FIXParsing, Input: Unexpected tag 10"},
      {order42, "10=000|", "10=000|58=late|", "FIXParsing, Input: Unexpected tag 58"},
  };
  for (const Row& row : rows) {
    std::string text = row.message;
    const std::size_t place = text.find(row.replaced);
    ASSERT_NE(place, std::string::npos) << row.replaced;
    text.replace(place, std::string(row.replaced).size(), row.by);
    EXPECT_EQ(errorOf(text), row.error) << row.replaced << " -> " << row.by;
    EXPECT_EQ(errorOf(row.message), "none");
  }
}

TEST_F(RoadInMemory, refusesEveryTruncatedMessage) {
  for (const std::string& message : {order42, order44, report44}) {
    const std::size_t trailer = message.find("10=000");
    for (std::size_t size = 0; size <= message.size(); ++size) {
      EXPECT_EQ(errorOf(message.substr(0, size)) == "none", size > trailer + 3) << message.substr(0, size);
    }
  }
}

enum class Outcome { PASSED, REFUSED, OUT_OF_MEMORY };

struct Attempt {
  Outcome outcome;
  bool allocationFailed;
};

/// Whichever allocation fails, of a new router or of one in use: the host learns of it, nothing is lost, and the same
/// router then takes the message as usual.
TEST_F(RoadInMemory, survivesEveryAllocationThatFails) {
  const auto attempt = [](MessageRouter& router, InputSource& source, long failing) {
    const FailingAllocation allocation(failing);
    try {
      process(router, source);
    } catch (const std::bad_alloc&) {
      return Attempt{Outcome::OUT_OF_MEMORY, allocation.happened()};
    } catch (const TransformException&) {
      return Attempt{Outcome::REFUSED, allocation.happened()};
    }
    return Attempt{Outcome::PASSED, allocation.happened()};
  };
  const std::string refused = order42 + "10=001|";
  const std::vector<std::string> messages = {order42, order44, report44, refused};
  for (const std::string& message : messages) {  // what a process keeps from its first message on
    StringInputSource source(zk(soh(message)));
    MessageRouter first;
    addRows(first);
    attempt(first, source, 0);
  }
  for (const std::string& message : messages) {
    StringInputSource source(zk(soh(message)));
    const Outcome usual = message == refused ? Outcome::REFUSED : Outcome::PASSED;
    for (const bool isNew : {true, false}) {
      bool failed = true;
      for (long n = 1; failed; ++n) {
        for (const bool again : {false, true}) {  // what is kept for reuse is there the second time
          const Allocations all;
          {
            MessageRouter fresh;
            addRows(fresh);
            if (!isNew) attempt(fresh, source, 0);
            const Attempt tried = attempt(fresh, source, n);
            failed = tried.allocationFailed;
            ASSERT_EQ(tried.outcome, failed ? Outcome::OUT_OF_MEMORY : usual) << n << message;
            ASSERT_EQ(attempt(fresh, source, 0).outcome, usual) << n << message;
          }
          ASSERT_TRUE(all.alive() == 0 || !again) << n << message;
        }
      }
    }
  }
}
}  // namespace
