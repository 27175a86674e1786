#include "fix/FIXOutputWriter.h"

#include "TestRecord.h"
#include "fix/FIXText.h"

namespace zarvik {
namespace {

struct OpenWriter : FIXOutputWriter {
  void writeHeader(DataObject* /*header*/, TransformContext& /*context*/) override {}
  void writeData(DataObject* /*data*/, TransformContext& /*context*/) override {}
  void writeTrailer(DataObject* /*trailer*/, TransformContext& /*context*/) override {}
  using FIXOutputWriter::appendField;
  using FIXOutputWriter::appendUTCDate;
  using FIXOutputWriter::appendUTCTimeOnly;
  using FIXOutputWriter::appendUTCTimestamp;
  using FIXOutputWriter::requiredFieldMissing;
};

TEST(FIXOutputWriter, writesEveryKindOfValue) {
  OpenWriter writer;
  for (int round = 0; round < 2; ++round) {  // the second message is like the first
    writer.appendField("8", "FIX.4.2");
    writer.appendField("58", "");
    writer.appendField("58", static_cast<const char*>(nullptr));
    writer.appendField("58", zkstring());
    writer.appendField("58", zkstring("text of a value"));
    writer.appendField("54", 'b');
    writer.appendField("40", '\0');
    writer.appendField("34", 0);
    writer.appendField("34", -2147483647 - 1);
    writer.appendField("99", __int64{-9223372036854775807});
    writer.appendField("44", 0.1F);
    writer.appendField("44", -1234.5678901251);
    writer.appendField("43", true);
    writer.appendField("a tag of more than sixteen bytes", false);
    EXPECT_EQ(str(writer.endMessage()),
              framed("8=FIX.4.2|", soh("58=text of a value|54=b|40=|34=0|34=-2147483648|99=-9223372036854775807|44=0.1|"
                                       "44=-1234.56789013|43=true|a tag of more than sixteen bytes=false|")));
    writer.initMessage();
  }
  EXPECT_EQ(writer.writeBatchStart(), nullptr);
}

/// Dates straight into the message, ordinary ones and one whose fields are as wide as they can be, against their texts.
TEST(FIXOutputWriter, writesDatesAsFIXTypeDoes) {
  const DateTime widest(TimeSpan(__int64{2147483647} * 86400, 2147483647));
  for (const DateTime& value : {DateTime(2001, 2, 3, 4, 5, 6, 7), DateTime(2001, 2, 3, 4, 5, 6, 0), widest}) {
    OpenWriter inPlace;
    OpenWriter byTexts;
    zkstring text;
    for (int i = 0; i < 100; ++i) {  // at every distance from the end of the block
      inPlace.appendUTCTimestamp("60", value);
      inPlace.appendUTCTimeOnly("273", value);
      inPlace.appendUTCDate("75", value);
      byTexts.appendField("60", FIXType::formatUTCTimestamp(value, text));
      byTexts.appendField("273", FIXType::formatUTCTimeOnly(value, text));
      byTexts.appendField("75", FIXType::formatUTCDate(value, text));
    }
    EXPECT_EQ(inPlace.endMessage(), byTexts.endMessage());
  }
}

TEST(FIXOutputWriter, framesMessagesOfEverySize) {
  OpenWriter writer;
  EXPECT_EQ(str(writer.endMessage()), framed("", ""));
  zkstring kept;
  std::string all;
  for (unsigned int size = 1; size < 300; ++size) {
    const std::string value(size, static_cast<char>(0x80 + size % 100));
    writer.initMessage();
    writer.appendField("8", "X");
    writer.appendField("58", zk(value));
    const zkstring message = writer.endMessage();
    EXPECT_EQ(str(message), framed("8=X|", "58=" + value + "\x01"));
    if (size == 100) kept = message;
  }
  EXPECT_EQ(kept.length(), 4U + 6 + 104 + 7);  // untouched by the messages after it
  EXPECT_EQ(kept[20], '\x80');

  writer.initMessage();
  writer.setChecksum(false);
  writer.appendField("8", "FIX.4.2");
  zkstring tooLong;  // is refused before it is looked at
  tooLong.getBuffer(1);
  tooLong.setBufferLength(std::numeric_limits<int>::max());
  EXPECT_THROW(writer.appendField("58", tooLong), std::bad_array_new_length);
  writer.appendField("35", "0");
  OpenWriter copy(writer);
  copy.appendField("1", 1);
  EXPECT_EQ(str(writer.endMessage()), soh("8=FIX.4.2|9=5|35=0|"));
  EXPECT_EQ(str(copy.endMessage()), soh("8=FIX.4.2|9=9|35=0|1=1|"));
}

TEST(FIXOutputWriter, namesAMissingField) {
  const OpenWriter writer;
  TestRecord record;
  EXPECT_EQ(errorOf<FIXWriterException>([&] { writer.requiredFieldMissing(&record, TestRecord::NAME, 55); }),
            "Name is a mandatory field. Tag 'Name[55]' cannot be null.");
}

}  // namespace
}  // namespace zarvik
