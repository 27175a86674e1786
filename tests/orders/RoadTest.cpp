#include <gtest/gtest.h>

#include <algorithm>
#include <new>

#include "Allocations.h"
#include "ContextOutputProtocol.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "StringInputSource.h"
#include "Support.h"
#include "TransformContext.h"
#include "orders/Installed.h"
#include "orders/Names.h"

using namespace zarvik;
using namespace orders;

namespace {

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

zkstring messageOf(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\x01');
  return zkstring(text.data(), static_cast<unsigned int>(text.size()));
}

/// The cartridge with a router, and all of its output in memory.
class Road : public testing::Test {
 protected:
  Road() {
    ensureInstalled();
    files = registry->lookup(FILES);
    registry->rebind(FILES, new ContextOutputProtocol);
    addRows(router);
  }
  ~Road() noexcept override { registry->rebind(FILES, files.get()); }

  static void process(MessageRouter& router, InputSource& source) {
    TransformContext context;
    context.createOutputContext();
    router.processMessage(source, context);
  }

  static zkstring fieldOf(const TransformException& error) {
    constexpr int fieldName = 5;
    return error.isNull(fieldName) ? zkstring() : error.getFFieldName();
  }

  /// What the host learns of the message: class, phase, type and field of the error, as far as there are any, and the
  /// first line of its text.
  std::string errorOf(const std::string& message) {
    StringInputSource source(messageOf(message));
    try {
      process(router, source);
    } catch (const TransformException& error) {
      EXPECT_EQ(error.getSeverity(), "fatal");
      zkstring told = classOf(error).substr(8);
      for (const zkstring& part : {error.getPhase(), error.getErrorType(), fieldOf(error)}) {
        if (!part.empty()) told = told + ", " + part;
      }
      told = told + ": " + error.getMessage();
      const std::string text(told.data(), told.length());
      return text.substr(0, text.find('\n'));
    }
    return "none";
  }

  SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  SmartPtr<Object> files;
  MessageRouter router;
};

struct Row {
  const std::string& message;
  const char *replaced, *by;
  const char* error;
};

TEST_F(Road, tellsWhatIsWrong) {
  const Row rows[] = {
      {order42, "8=FIX.4.2", "8=FOX.4.2", "UnrecognizedMessageException: Unrecognized message format"},
      {order42, "8=FIX.4.2", "8=FIX.4.9", "UnhandledMessageException: Cannot handle message <DataObject>"},
      {order42, "35=D", "35=Z", "UnhandledMessageException: Cannot handle message <DataObject>"},
      {order42, "9=0", "9",
       "FIXParsingException: [col 12] 'Name or value' can't be empty. Unable to parse tag=value of form 9"},
      {order42, "35=D|", "35=D|35=D|", "FieldParsingException, Input: Duplicate Tag 'MsgType[35]'."},
      {order42, "34=7|", "", "FieldParsingException, Input: Tag 'MsgSeqNum[34]' expected."},
      {order42, "34=7", "34=seven", "FIXParsingException: [col 38] Cannot convert 'seven' to int"},
      {order42, "49=A|", "", "FieldParsingException, Input: Tag 'SenderCompID[49]' expected."},
      {order42, "52=20260310-14:32:36|", "", "FieldParsingException, Input: Tag 'SendingTime[52]' expected."},
      {order42, "52=20260310-14:32:36", "52=yesterday",
       "TransformRuntimeException, Input: Error parsing date string, expected pattern 'yyyyMMdd-HH:mm:ss' found "
       "'yesterday"},
      {order42, "56=B", "56=", "FieldParsingException, Input, TargetCompID: Field 'TargetCompID' cannot be null."},
      {order42, "11=X1|", "", "FieldParsingException, Input: Tag 'ClOrdID[11]' expected."},
      {order42, "21=1|", "", "FieldParsingException, Input: Tag 'HandlInst[21]' expected."},
      {order42, "54=1", "54=", "FieldParsingException, Input, Side: Field 'Side' cannot be null."},
      {order42, "54=1", "54=7", "FieldParsingException, Input, Side: Side '7' is not supported"},
      {order42, "54=1", "54=11", "FieldParsingException, Input: Cannot convert 11 to char"},
      {order42, "38=90000", "38=9e4", "TransformException, Input: Cannot convert '9e4' to int"},
      {order42, "38=90000", "38=-", "FieldParsingException, Input: Cannot convert '-' to int"},
      {order42, "38=90000", "38=4295057296", "FieldParsingException, Input: Cannot convert '4295057296' to int"},
      {order42, "38=90000", "38=0",
       "TransformException, Internal Message, Validation, Quantity: Validation 'positive' failed. Field 'Quantity' is "
       "not "
       "valid"},
      {order42, "44=247.3", "44=247,3", "TransformException, Input: Cannot convert '247,3' to double"},
      {order42, "44=247.3", "44=1e309", "FieldParsingException, Input, Price: Number '1e309' is too large"},
      {order42, "44=247.3", "44=247-3", "FieldParsingException, Input, Price: Cannot convert '247-3' to double"},
      {order42, "40=2", "40=1", "FieldParsingException, Input, Price: A market order has no Price"},
      {order42, "44=247.3|", "", "FieldParsingException, Input, Price: A limit order has a Price"},
      {order42, "22=4|", "", "FieldParsingException, Input, SecurityIDSource: SecurityIDSource '' is not supported"},
      {order42, "40=2", "40=3", "FieldParsingException, Input, OrdType: OrdType '3' is not supported"},
      {order42, "59=0", "59=6", "FieldParsingException, Input, TimeInForce: TimeInForce '6' is not supported"},
      {order42, "60=20260310-14", "60=20261310-14", "TransformRuntimeException, Input: Illegal date 2026-13-10"},
      {order42, "1=4711", "1=47X1", "FieldParsingException, Input, Account: Account '47X1' is not a number"},
      {order42, "1=4711", "1=04711", "FieldParsingException, Input, Account: Account '04711' begins with a zero"},
      {order42, "DE0007164600", "DE0007164601",
       "TransformException, Internal Message, Validation, Instrument.ISIN: Validation 'check digit' failed. Field "
       "'Instrument.ISIN' is not valid"},
      {order42, "59=0", "59",
       "FIXParsingException, Input: 'Name or value' can't be empty. Unable to parse tag=value of form 59"},
      {order42, "59=0", "=0", "TransformException, Input: Cannot convert '' to int"},
      {order42, "59=0", "5x=0", "TransformException, Input: Cannot convert '5x' to int"},
      {order42, "59=0", "99=0", "FIXParsingException, Input: Unexpected tag 99"},
      {order42, "59=0|", "59=0||",
       "FIXParsingException, Input: 'Name or value' can't be empty. Unable to parse tag=value of form "},
      {order42, "59=0", "453=1|448=P|447=D|452=1", "FIXParsingException, Input: Unexpected tag 453"},
      {order42, "78=2", "78=3", "FieldParsingException, Input: Tag '78' counts 3 elements, but there are 2"},
      {order42, "78=2", "78=1", "FieldParsingException, Input: Tag '78' counts 1 elements, but there are 2"},
      {order42, "78=2", "78=", "TransformException, Input: Cannot convert '' to int"},
      {order42, "78=2|", "78=0|", "FieldParsingException, Input: Tag '78' counts 0 elements, but there are 2"},
      {order42, "79=F|80=60000", "80=60000|79=F",
       "FieldParsingException, Input: Tag '78' counts 2 elements, but there are 0"},
      {order42, "80=60000", "80=60000|80=1", "FieldParsingException, Input: Duplicate Tag 'Quantity[80]'."},
      {order42, "95=3", "78=0|95=3", "FieldParsingException, Input: Duplicate section Tag '78'."},
      {order44, "453=1", "453=2", "FieldParsingException, Input: Tag '453' counts 2 elements, but there are 1"},
      {order44, "452=1", "452=1|447=D", "FieldParsingException, Input: Duplicate Tag 'Source[447]'."},
      {report44, "538=4", "538=", "FieldParsingException, Input, Role: Field 'Role' cannot be null."},
      {report44, "623=1|539", "623=1|623=1|539", "FieldParsingException, Input: Duplicate Tag 'Ratio[623]'."},
      {report44, "524=P", "524=P|555=1", "FieldParsingException, Input: Tag '555' counts 2 elements, but there are 1"},
      {order42, "95=3", "95=2",
       "FIXParsingException, Input: Blob type tag value pair has incorrect data length, character after the specified "
       "length is not the SOH character"},
      {order42, "95=3", "95=300", "FIXParsingException, Input: Unexpected end of input while looking for data"},
      {order42, "95=3|", "95=3|58=abc|", "FieldParsingException, Input: Tag '96' expected."},
      {order42, "96=a=b|", "", "FieldParsingException, Input: Tag '96' expected."},
      {order42, "95=3|", "", "FIXParsingException, Input: Unexpected tag 96"},
      {order42, "95=3|96=a=b", "95=0|96=", "FieldParsingException, Input, RawData: Field 'RawData' cannot be null."},
      {order42, "95=3", "95=2147483647", "FIXParsingException, Input: Unexpected end of input while looking for data"},
      {report44, "150=F", "150=H", "FieldParsingException, Input, ExecType: ExecType 'H' is not supported"},
      {report42, "20=0", "20=1", "FieldParsingException, Input, ExecTransType: ExecTransType '1' is not supported"},
      {report44, "150=F", "150=FF", "FieldParsingException, Input: Cannot convert FF to char"},
      {report44, "37=V1", "20=0|37=V1", "FieldParsingException, Input: Tag 'OrderID[37]' expected."},
      {order42, "10=000|", "", "FieldParsingException, Input: Tag '10' expected."},
      {order42, "10=000|", "10=000|10=000|", "FIXParsingException, Input: Unexpected tag 10"},
      {order42, "10=000|", "10=000|58=late|", "FIXParsingException, Input: Unexpected tag 58"},
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

TEST_F(Road, refusesEveryTruncatedMessage) {
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
TEST_F(Road, survivesEveryAllocationThatFails) {
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
    StringInputSource source(messageOf(message));
    MessageRouter first;
    addRows(first);
    attempt(first, source, 0);
  }
  for (const std::string& message : messages) {
    StringInputSource source(messageOf(message));
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
