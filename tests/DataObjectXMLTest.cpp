#include "DataObjectXML.h"

#include <cmath>

#include "TestRecord.h"

namespace zarvik {
namespace {

TEST(DataObjectXML, escapesCharacterData) {
  const std::pair<zkstring, const char*> rows[] = {{"a<b>&c", "a&lt;b&gt;&amp;c"},
                                                   {"'\"", "'\""},
                                                   {"\t\r\n<", "\t\r\n&lt;"},
                                                   {zkstring("\0\x1F \x7F", 4), "&#0;&#31; \x7F"},
                                                   {"\x80\xE9\xFF", "&#-128;&#-23;&#-1;"},
                                                   {"", ""}};
  for (const auto& [text, escaped] : rows) EXPECT_EQ(DataObjectXML::fixXMLCharData(text), escaped);
  const zkstring plain("plain text\t1");
  EXPECT_EQ(DataObjectXML::fixXMLCharData(plain).data(), plain.data());
}

TEST(DataObjectXML, indentationEndsAt52) {
  for (const auto& [level, tabs] : {std::pair{0, 0U}, {3, 3U}, {52, 52U}, {53, 52U}, {-1, 52U}}) {
    zkstringbuffer out;
    DataObjectXML::appendIndent(out, level);
    EXPECT_EQ(out, zkstring(tabs, '\t'));
  }
}

/// A record of one field, whose text comes about in two ways: straight from the value, and by way of its box.
template <class T>
class Single : public AbstractDataObject {
 public:
  Single(const char* type, T value)
      : AbstractDataObject(&info, &flag, nullptr), info("", &name, &type, 1), value(value) {}
  zkstring direct() { return toXMLStringImpl(1); }
  zkstring byBox() { return DataObjectBase::toXMLStringImpl(1); }

 protected:
  using AbstractDataObject::getField0;
  Object* getField0(int /*index*/, Object* reuse) const override { return box(value, reuse); }

 private:
  const char* name = "Field";
  DataObjectMetaInfo info;
  bool flag = true;
  T value;
};

template <class T>
void expectTheBoxesText(const char* type, T value) {
  const SmartPtr<Single<T>> record(new Single<T>(type, value));
  const auto textOf = [](auto make) {
    try {
      return make();
    } catch (const TransformException& error) {
      return error.getMessage();
    }
  };
  EXPECT_EQ(textOf([&] { return record->direct(); }), textOf([&] { return record->byBox(); })) << type;
}

TEST(DataObjectXML, writesEveryKindAsItsBoxPrints) {
  for (const char* type : {"Integer", "DateTime", "DateOnly", "TimeOnly", "Binary", "Other"}) {
    for (const int number : {0, -1, 99, std::numeric_limits<int>::min()}) expectTheBoxesText(type, number);
    expectTheBoxesText(type, std::numeric_limits<__int64>::min());
    for (const double number : {0.0, -1.25, 1e300, std::nan("")}) expectTheBoxesText(type, number);
    expectTheBoxesText(type, 1.5F);
    expectTheBoxesText(type, '<');
    expectTheBoxesText(type, true);
    for (const char* text : {"", "text", "a longer text, <escaped> & \x80", "'quotes' \"alone\""}) {
      expectTheBoxesText(type, zkstring(text));
    }
    expectTheBoxesText(type, Binary("\1<", 2));
    expectTheBoxesText(type, BigInteger("12345678901234567890"));
    expectTheBoxesText(type, BigDecimal("-0.5"));
    for (const int millis : {0, 678}) expectTheBoxesText(type, DateTime(2024, 1, 2, 3, 4, 5, millis));
    expectTheBoxesText(type, ISODateTime(DateTime(2024, 1, 2, 3, 4, 5, 6)));
  }
}

/// Knows nothing of boxes that are used again, and has one field that is null in spite of its flag.
class BoxesOnly : public TestRecord {
 protected:
  Object* getField0(int index) const override { return index == NAME ? new StringObject("<") : nullptr; }
  Object* getField0(int index, Object* reuse) const override { return AbstractDataObject::getField0(index, reuse); }
};

TEST(DataObjectXML, asksForABoxWhereThereIsNoOtherWay) {
  const SmartPtr<BoxesOnly> record(new BoxesOnly);
  record->setNotNull(TestRecord::NAME);
  EXPECT_EQ(record->toXMLString(), "<DataObject>\n\t<Name>&lt;</Name>\n</DataObject>\n");
}
}  // namespace
}  // namespace zarvik
