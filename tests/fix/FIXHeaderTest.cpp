#include "fix/FIXHeader.h"

#include "Support.h"
#include "fix/FIXText.h"

namespace zarvik {
namespace {

struct OpenHeader : FIXHeader {
  using FIXHeader::getField0;
  using FIXHeader::setField0;
};

void parse(FIXHeader& header, const std::string& text) {
  header.parseHeader(text.data(), static_cast<int>(text.size()));
}

TEST(FIXHeader, takesEveryTagIntoItsField) {
  const std::string message =
      soh("8=FIX.4.2|9=100|35=D|49=A|56=B|115=C|128=E|34=7|50=F|57=G|43=N|52=20010101-00:00:00|90=1|91=x|97=Y|116=i|"
          "122=t|129=j|142=l|143=m|144=n|145=o|212=1|213=y|347=UTF-8|369=4|370=u|34=8|11=end|49=body|");
  FIXHeader header;
  parse(header, message);
  EXPECT_EQ(header.toXMLString(1),
            "<DataObject>\n\t<MessageFormat>FIX</MessageFormat>\n\t<MessageVersion>4.2</MessageVersion>\n"
            "\t<MessageType>D</MessageType>\n\t<BeginString>FIX.4.2</BeginString>\n\t<BodyLength>100</BodyLength>\n"
            "\t<MsgType>D</MsgType>\n\t<SenderCompID>A</SenderCompID>\n\t<TargetCompID>B</TargetCompID>\n"
            "\t<OnBehalfOfCompID>C</OnBehalfOfCompID>\n\t<DeliverToCompID>E</DeliverToCompID>\n"
            "\t<MsgSeqNum>8</MsgSeqNum>\n\t<SenderSubID>F</SenderSubID>\n\t<TargetSubID>G</TargetSubID>\n"
            "</DataObject>\n");
  EXPECT_EQ(header.getHeaderField("SenderCompID"), "A");
  EXPECT_EQ(header.getHeaderField("BodyLength"), "100");
  EXPECT_EQ(header.getHeaderField("SendingTime"), "");
  EXPECT_THROW(header.getSendingTime(), FieldNullException);
  header.setBeginString("FIX");
  EXPECT_EQ(header.getMessageVersion(), "");
}

TEST(FIXHeader, writesTheSendingTimeWhereItsTextWas) {
  FIXHeader header;
  header.setSendingTime(DateTime(2001, 2, 3, 4, 5, 6, 7));
  const zkstring kept = header.getSendingTime();
  header.setSendingTime(DateTime(2002, 2, 3, 4, 5, 6, 0));  // not into what somebody else holds
  EXPECT_EQ(kept, "20010203-04:05:06.007");
  const Allocations allocations;
  header.setSendingTime(DateTime(2003, 2, 3, 4, 5, 6, 7));
  EXPECT_EQ(allocations.count(), 0);
  EXPECT_EQ(header.getSendingTime(), "20030203-04:05:06.007");
}

/// Wherever a message is cut, the header has what came before, or the error names the place behind the last field.
TEST(FIXHeader, readsWhatIsThereOfACutMessage) {
  const std::string message = soh("8=FIX.4.4|9=12|35=AE|34=3|49=S|");
  for (std::size_t size = 0; size <= message.size(); ++size) {
    FIXHeader header;
    const std::string error = errorOf<FIXParsingException>([&] { parse(header, message.substr(0, size)); });
    const std::size_t fieldStart = size == 0 ? 0 : message.rfind('\x01', size - 1) + 1;
    const std::string last = message.substr(fieldStart, size - fieldStart);
    const bool isBad = !last.empty() && (last.find('=') == std::string::npos || last == "9=" || last == "34=");
    EXPECT_EQ(error.substr(0, error.find(']')), isBad ? "[col " + std::to_string(size + 1) : "no exception") << last;
    EXPECT_EQ(header.isNull(FIXHeader::BODY_LENGTH), size < 13) << last;
  }
  FIXHeader header;
  EXPECT_EQ(errorOf<FIXParsingException>([&] { parse(header, soh("9=abc|35=D|")); }),
            "[col 6] Cannot convert 'abc' to int");
}

TEST(FIXHeader, copiesValuesAndNullsAndKeepsToItsIndexes) {
  OpenHeader header;
  header.setMsgType("8");
  header.setField("MsgSeqNum", IntObject(5));
  const SmartPtr<FIXHeader> clone(dynamic_cast<FIXHeader*>(header.clone()));
  FIXHeader assigned;
  assigned.setSenderSubID("gone");
  assigned = *clone;
  EXPECT_EQ(assigned.toXMLString(), header.toXMLString());
  EXPECT_EQ(assigned.getMsgSeqNum(), 5);
  for (const int index : {-1, 14}) {
    const IntObject value(1);
    EXPECT_EQ(errorOf<FieldNotFoundException>([&] { header.getField0(index); }), "Field index out of bounds");
    EXPECT_EQ(errorOf<FieldNotFoundException>([&] { header.setField0(index, &value); }), "Field index out of bounds");
  }
}

}  // namespace
}  // namespace zarvik
