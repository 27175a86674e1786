#include "DataObjectIO.h"

#include <memory>
#include <random>

#include "ExternalObject.h"
#include "GenericDataObject.h"
#include "KelvaraTypes.h"
#include "Support.h"
#include "TestRecord.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

zkstring hex(const ByteBuffer& buffer) {
  return Binary(buffer.str(), static_cast<unsigned int>(buffer.length())).toHexString();
}
zkstring hexOf(const DataObject* record) { return DataObjectIO::serialize(record).toHexString(); }

/// Reads bytes that lie in a block of exactly their length, so that no step beyond it goes unseen.
void parse(DataObject* record, const Binary& bytes) {
  const auto exact = std::make_unique<char[]>(bytes.length());
  std::copy_n(bytes.data(), bytes.length(), exact.get());
  DataObjectIO::parse(record, exact.get(), static_cast<int>(bytes.length()));
}
void parseHex(DataObject* record, const char* digits) { parse(record, Binary::fromHexString(digits)); }

TEST(DataObjectIO, numbersTakeOneToFiveBytes) {
  for (const auto& [value, bytes] : {std::pair{0U, "00"},
                                     {127U, "7F"},
                                     {128U, "8001"},
                                     {16383U, "FF7F"},
                                     {16384U, "808001"},
                                     {2097152U, "80808001"},
                                     {268435456U, "8080808001"},
                                     {0xFFFFFFFFU, "FFFFFFFF0F"}}) {
    ByteBuffer buffer;
    DataObjectIO::writeFastUnsignedInt(buffer, value);
    EXPECT_EQ(hex(buffer), bytes);
    EXPECT_EQ(DataObjectIO::readFastUnsignedInt(buffer), value);
    EXPECT_FALSE(buffer.hasMore());
  }
  ByteBuffer endless("\x81\x80\x80\x80\xF0\x80\x02", 7);  // more groups and more bits than a number has
  EXPECT_EQ(DataObjectIO::readFastUnsignedInt(endless), 1U | 2U << (42 & 31));
}

/// A field of each type word, its content by hand, and whether it can be read back.
struct Row {
  const char* type;
  std::shared_ptr<Object> value;
  const char* content;
  bool isRead = true;
};
template <class Box, class T>
Row row(const char* type, T value, const char* content, bool isRead = true) {
  return {type, {new Box(value), [](Object* box) { box->releaseRef(); }}, content, isRead};
}

const DateTime moment(2024, 2, 29, 23, 59, 7, 300);

std::vector<Row> rows() {
  return {
      row<StringObject>("String", "A", "0141"),
      row<StringObject>("String", "", "00"),
      row<StringObject>("String", "a\xE9", "0261E9FFFFFF0F"),
      row<IntObject>("Integer", -2, "FFFFFFFE"),
      row<LongObject>("Long", 0x0102030405060708LL, "0102030405060708"),
      row<DoubleObject>("Double", -2.5, "C004000000000000"),
      row<FloatObject>("Float", 1.5F, "3FC00000"),
      row<DateObject>("DateTime", moment, "E80F021D173B07AC02"),
      row<DateObject>("DateOnly", DateTime(2024, 2, 29, 0, 0, 0, 0), "E80F021D"),
      row<DateObject>("TimeOnly", DateTime(1970, 1, 1, 23, 59, 7, 300), "173B07AC02"),
      row<CharObject>("Character", 'B', "42"),
      row<CharObject>("Character", '\xE9', "E9FFFFFF0F"),
      row<BoolObject>("Boolean", true, "0474727565"),
      row<BinaryObject>("Binary", Binary("\x01\xAB", 2), "0430314142"),
      row<BigIntegerObject>("BigInteger", BigInteger("123"), "03313233"),
      row<BigDecimalObject>("BigDecimal", BigDecimal("1.5"), "03312E35"),
      row<ISODateObject>("ISODateTime", ISODateTime(moment), "17323032342D30322D32395432333A35393A30372E333030", false),
      row<StringObject>("Price", "7", "0137", false)};
}

TEST(DataObjectIO, everyTypeWordHasItsForm) {
  for (const Row& each : rows()) {
    const char* const name = "Field";
    const SmartPtr<DataObject> record(
        new GenericDataObject(new DataObjectMetaInfo("Record", &name, &each.type, 1), true));
    ByteBuffer buffer;
    DataObjectIO::writeField(buffer, each.value.get(), each.type);
    EXPECT_EQ(hex(buffer), each.content) << each.type;
    if (!each.isRead) {
      EXPECT_THROW(DataObjectIO::readSetField(record.get(), 0, buffer, each.type), TransformException) << each.type;
      continue;
    }
    ByteBuffer view(buffer.str(), buffer.length());  // of exactly the bytes that are needed
    DataObjectIO::readSetField(record.get(), 0, view, each.type);
    const SmartPtr<Object> read(record->getField(0));
    EXPECT_EQ(classOf(*read), classOf(*each.value));
    EXPECT_EQ(read->toString(), each.value->toString());
    EXPECT_EQ(hexOf(record.get()), zkstring("01") + each.content + "00");
  }
}

/// Any record that has a field of each readable type word and, to some depth, a group of its own kind.
class AnyRecord {
 public:
  AnyRecord() {
    for (Row& each : rows()) {
      if (each.isRead) values.push_back(std::move(each));
    }
    std::vector<const char*> names(values.size() + 1, "Field");
    std::vector<const char*> types;
    for (const Row& each : values) types.push_back(each.type);
    names.back() = "Group";
    types.push_back("Section");
    meta = std::make_unique<DataObjectMetaInfo>("Any", names.data(), types.data(), static_cast<int>(types.size()));
    meta->getSectionMetaInfo(group())->init(meta.get(), 0, -1);
  }

  SmartPtr<DataObject> empty() { return new GenericDataObject(meta.get(), false); }
  void fill(DataObject& record, int depth) {
    for (int i = 0; i < group(); ++i) {
      if (random() % 3 != 0) record.setField(i, values[static_cast<unsigned int>(i)].value.get());
    }
    const auto size = static_cast<unsigned int>(random() % 40);
    if (random() % 2 == 0) record.setField(0, StringObject(zkstring(size, static_cast<char>(random()))));
    for (auto elements = depth > 0 ? random() % 3 : 0; elements > 0; --elements) {
      DataObjectSection* const section = record.getSection(group());
      const SmartPtr<DataObject> element(section->createElement());
      section->addElement(element.get());
      fill(*element, depth - 1);
    }
  }

 private:
  int group() const { return static_cast<int>(values.size()); }

  std::vector<Row> values;
  std::unique_ptr<DataObjectMetaInfo> meta;
  std::mt19937 random{20};
};

TEST(DataObjectIO, recordsComeBackAndCutOnesDoNot) {
  AnyRecord any;
  for (int round = 0; round < 20; ++round) {
    const SmartPtr<DataObject> record = any.empty();
    any.fill(*record, 2);
    const Binary bytes = DataObjectIO::serialize(record.get());
    const SmartPtr<DataObject> copy = any.empty();
    parse(copy.get(), bytes);
    EXPECT_EQ(copy->toXMLString(), record->toXMLString());
    EXPECT_EQ(DataObjectIO::serialize(copy.get()), bytes);
    for (int length = 0; length < static_cast<int>(bytes.length()); ++length) {
      EXPECT_EQ(errorOf<TransformException>([&] { parse(copy.get(), bytes.sub(0, length)); }), "Out of bounds");
    }
  }
}

/// Has only that form of its fields which makes a box.
class BoxMaker : public TestRecord {
 protected:
  Object* getField0(int /*index*/, Object* /*reuse*/) const override {
    return TestRecord::getField0(FIELD_COUNT, nullptr);  // which throws
  }
  Object* getField0(int index) const override { return TestRecord::getField0(index, nullptr); }
};

TEST(DataObjectIO, sectionsAreFilledAnewAndOtherFieldsKept) {
  const SmartPtr<TestRecord> record(new BoxMaker);
  EXPECT_EQ(hexOf(record.get()), "00");
  record->setField(TestRecord::NAME, zkstring("A"));
  TestRecord* const leg = record->add(record->legs, "B");
  leg->add(leg->inner, "C");
  const char* const bytes =
      "010141"
      "0301"
      "010142"
      "0401"
      "01014300"
      "00"
      "00";
  EXPECT_EQ(hexOf(record.get()), bytes);
  const SmartPtr<TestRecord> other(new TestRecord);
  other->setField(TestRecord::COUNT, IntObject(7));
  other->add(other->legs, "old");
  other->add(other->inner, "kept");
  parseHex(other.get(), bytes);
  record->setField(TestRecord::COUNT, IntObject(7));
  record->add(record->inner, "kept");
  EXPECT_EQ(other->toXMLString(), record->toXMLString());
}

TEST(DataObjectIO, nestedObjectsAreResetAndReadInPlace) {
  const auto envelope = [](const SmartPtr<TestRecord>& data) {
    return SmartPtr<DataObject>(new ExternalObject(nullptr, data.get(), nullptr));
  };
  const SmartPtr<TestRecord> data(new TestRecord);
  const SmartPtr<TestRecord> other(new TestRecord);
  data->setField(TestRecord::COUNT, IntObject(1));
  other->setField(TestRecord::NAME, zkstring("goes"));
  EXPECT_EQ(hexOf(envelope(data).get()), "0202000000010000");
  parse(envelope(other).get(), DataObjectIO::serialize(envelope(data).get()));
  EXPECT_TRUE(other->isNull(TestRecord::NAME));
  EXPECT_EQ(other->values.count, 1);
}

TEST(DataObjectIO, refusesWhatDoesNotFit) {
  const SmartPtr<TestRecord> record(new TestRecord);
  const auto errorOfBytes = [&](const Binary& bytes) {
    return errorOf<TransformException>([&] { parse(record.get(), bytes); });
  };
  for (const char* bytes : {"", "01FFFFFFFF0F41", "03FFFFFF7F00", "0382808080000000", "0300"}) {
    EXPECT_EQ(errorOfBytes(Binary::fromHexString(bytes)), "Out of bounds") << bytes;
  }
  EXPECT_EQ(errorOfBytes(Binary::fromHexString("01014100"
                                               "00")),
            "Unexpected characters at the end of serialzied message");
  EXPECT_EQ(record->values.name, "A");  // what was read stays
  zkstringbuffer deep;
  for (int i = 0; i < 100000; ++i) deep.append("\x03\x01", 2);
  EXPECT_EQ(errorOfBytes(deep), "Out of bounds");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "05"); }), "Field at index 4 not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "FFFFFFFF0F"); }),
            "Field at index -2 not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "0402000000"); }),
            "Cannot add more than one element to this section");
}
}  // namespace
}  // namespace zarvik
