#include "DataObjectIO.h"

#include "TestRecord.h"

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

/// A value of each type word that can be read, and its content by hand.
constexpr struct {
  const char* type;
  const char* text;
  const char* content;
} rows[] = {{"String", "A", "0141"},
            {"String", "", "00"},
            {"String", "a\xE9", "0261E9FFFFFF0F"},
            {"Integer", "-2", "FFFFFFFE"},
            {"Long", "72623859790382856", "0102030405060708"},
            {"Double", "-2.5", "C004000000000000"},
            {"Float", "1.5", "3FC00000"},
            {"DateTime", "20240229-23:59:07.300", "E80F021D173B07AC02"},
            {"DateOnly", "20240229", "E80F021D"},
            {"TimeOnly", "23:59:07.300", "173B07AC02"},
            {"Character", "B", "42"},
            {"Character", "\xE9", "E9FFFFFF0F"},
            {"Boolean", "true", "0474727565"},
            {"Binary", "01AB", "0430314142"},
            {"BigInteger", "123", "03313233"},
            {"BigDecimal", "1.5", "03312E35"}};
constexpr int group = std::size(rows);

/// A record with the fields of all rows, and a group of the same kind.
SmartPtr<DataObject> anyRecord() {
  static const std::unique_ptr<DataObjectMetaInfo> info = [] {
    std::vector<const char*> names(group, "Field"), types;
    for (const auto& row : rows) types.push_back(row.type);
    names.push_back("Group");
    types.push_back("Section");
    auto made = std::make_unique<DataObjectMetaInfo>("Any", names.data(), types.data(), group + 1);
    made->getSectionMetaInfo(group)->init(made.get(), 0, -1);
    return made;
  }();
  return new GenericDataObject(info.get(), false);
}

void setField(DataObject& record, int row) {
  const SmartPtr<Object> value(Parsing::toRuntimeObject(rows[row].text, rows[row].type));
  record.setField(row, *value);
}

TEST(DataObjectIO, everyTypeWordHasItsForm) {
  for (int i = 0; i < group; ++i) {
    const SmartPtr<DataObject> record = anyRecord();
    setField(*record, i);
    const SmartPtr<Object> value(record->getField(i));
    ByteBuffer buffer;
    DataObjectIO::writeField(buffer, value.get(), rows[i].type);
    EXPECT_EQ(hex(buffer), rows[i].content) << rows[i].type;
    DataObjectIO::readSetField(record.get(), i, buffer, rows[i].type);
    EXPECT_EQ(classOf(*record->getFieldVal(i)), classOf(*value));
    EXPECT_EQ(record->getFieldVal(i)->toString(), value->toString());
    EXPECT_FALSE(buffer.hasMore());
  }
}

/// Gives the record some of the values, a text of up to 40 equal bytes, and groups within groups.
void fill(DataObject& record, int depth, std::mt19937& random) {
  for (int i = 0; i < group; ++i) {
    if (random() % 3 != 0) setField(record, i);
  }
  record.setField(0, StringObject(zkstring(static_cast<unsigned int>(random() % 40), static_cast<char>(random()))));
  for (auto elements = depth > 0 ? random() % 3 : 0; elements > 0; --elements) {
    DataObjectSection& section = *record.getSection(group);
    const SmartPtr<DataObject> element(section.createElement());
    section.addElement(element.get());
    fill(*element, depth - 1, random);
  }
}

TEST(DataObjectIO, recordsComeBackAndCutOnesDoNot) {
  std::mt19937 random(20);
  for (int round = 0; round < 20; ++round) {
    const SmartPtr<DataObject> record = anyRecord();
    fill(*record, 2, random);
    const Binary bytes = DataObjectIO::serialize(record.get());
    const SmartPtr<DataObject> copy = anyRecord();
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
  Object* getField0(int index, Object* reuse) const override { return AbstractDataObject::getField0(index, reuse); }
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
  ByteBuffer unknown("\x01\x37", 2);
  EXPECT_EQ(errorOf<TransformException>([&] { DataObjectIO::readSetField(record.get(), 0, unknown, "ISOTime"); }),
            "Cannot convert '7' to ISOTime");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "05"); }), "Field at index 4 not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "FFFFFFFF0F"); }),
            "Field at index -2 not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { parseHex(record.get(), "0402000000"); }),
            "Cannot add more than one element to this section");
}
}  // namespace
}  // namespace zarvik
