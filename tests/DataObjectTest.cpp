
#include "Exceptions.h"
#include "TestRecord.h"

namespace zarvik {
namespace {

using Record = SmartPtr<TestRecord>;

Record filled() {
  Record root(new TestRecord);
  root->setField(TestRecord::NAME, zkstring("a<b"));
  root->setField(TestRecord::COUNT, IntObject(7));
  TestRecord* const leg = root->add(root->legs, "leg");
  leg->add(leg->legs, "deep");
  root->add(root->inner, "in");
  return root;
}

TEST(DataObject, startsNullAndEmpty) {
  const Record record(new TestRecord);
  IntObject untouched(5);
  zkstring text("as it was");
  EXPECT_TRUE(record->isEmpty());
  EXPECT_EQ(record->getField(TestRecord::NAME), nullptr);
  EXPECT_FALSE(record->getField(TestRecord::COUNT, untouched));
  EXPECT_FALSE(record->getField(TestRecord::NAME, text));
  EXPECT_EQ(untouched.getInt(), 5);
  EXPECT_EQ(text, "as it was");
  EXPECT_EQ(record->toXMLString(), "<DataObject>\n</DataObject>\n");
}

TEST(DataObject, isEmptyAsLongAsItsSectionsAre) {
  const Record record(new TestRecord);
  TestRecord* const leg = record->add(record->legs, nullptr);
  EXPECT_TRUE(record->isEmpty());
  leg->setField("No of", IntObject(0));
  EXPECT_FALSE(record->isEmpty());
  record->setNullValue(TestRecord::LEGS);  // a section that is null is not looked at
  EXPECT_TRUE(record->isEmpty());
}

TEST(DataObject, readsAndWritesByIndexAndName) {
  const Record record(new TestRecord);
  record->setField("No of", LongObject(42));
  EXPECT_EQ(record->getFieldVal(TestRecord::COUNT)->getInt(), 42);
  LongObject number;
  EXPECT_TRUE(record->getField("No of", number));
  EXPECT_EQ(number.getValue(), 42);
  record->setField(TestRecord::COUNT, static_cast<const Object*>(nullptr));
  EXPECT_TRUE(record->isNull("No of"));
  record->setField("Name", zkstring("text"));
  zkstring text;
  EXPECT_TRUE(record->getField(TestRecord::NAME, text));
  EXPECT_EQ(text, "text");
}

TEST(DataObject, reuseOfABoxAllocatesNothing) {
  const Record record = filled();
  IntObject number;
  StringObject text;
  const zkstringliteral name("Name");
  const Allocations allocations;
  static_cast<const DataObject&>(*record).getField(TestRecord::COUNT, number);
  static_cast<const DataObject&>(*record).getField(name, text);
  EXPECT_EQ(allocations.count(), 0);
}

TEST(DataObject, tellsWhatIsWrong) {
  const Record root = filled();
  auto* const leg = static_cast<TestRecord*>(root->legs.getElement(0));
  leg->setNull(TestRecord::NAME);
  EXPECT_EQ(errorOf<TransformNullValueException>([&] { leg->getFieldCheckNullVal(TestRecord::NAME); }),
            "Attempt to access field '1st Leg.Name' with null value");
  EXPECT_EQ(errorOf<FieldNullException>([&] { leg->ensureNotNull(TestRecord::NAME); }),
            "Attempt to access field '1st Leg.Name' with null value");
  EXPECT_EQ(errorOf<FieldNullException>([&] { leg->assertNotNull(TestRecord::NAME); }),
            "Not-null check failed. The field '1st Leg.Name' has null value");
  EXPECT_EQ(errorOf<TransformException>([&] { leg->setField("No of", StringObject("7")); }),
            "Cannot convert String to Integer");
  EXPECT_FALSE(leg->isNull("No of"));  // the flag is set all the same
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { root->setField(TestRecord::INNER, IntObject(1)); }),
            "Field index out of bounds - 3");
  EXPECT_EQ(errorOf<ClassCastException>([&] { root->getSection(TestRecord::NAME); }),
            "Cannot cast zarvik::StringObject* to zarvik::SectionObject");
  EXPECT_EQ(errorOf<ClassCastException>([&] { leg->getSection(TestRecord::NAME); }),
            "Cannot cast NULL to zarvik::SectionObject");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { root->createSectionElement("Name", nullptr); }),
            "No section with name 'Name'.");
}

/// A record whose names fail, as those of a field that is not there do.
class Nameless : public TestRecord {
 public:
  zkstring getQualifiedName(int /*index*/) override { throw TransformException("no name"); }
  Object* getField(int /*index*/) const override { return nullptr; }
};

TEST(DataObject, aFieldWithoutANameLosesCharactersByItsIndex) {
  const SmartPtr<Nameless> record(new Nameless);
  for (const auto& [index, text] : {std::pair{0, "at index "}, {3, "index "}, {8, " "}, {9, ""}, {-1, ""}}) {
    EXPECT_EQ(errorOf<TransformNullValueException>([&, i = index] { record->getFieldCheckNull(i); }),
              std::string("Attempt to access field '") + text + "' with null value");
  }
}

TEST(DataObject, writesXML) {
  const Record record = filled();
  const char* const fields =
      "\t<Name>a&lt;b</Name>\n\t<No_of>7</No_of>\n"
      "\t<F1st_Leg>\n\t\t<Name>leg</Name>\n\t\t<F1st_Leg>\n\t\t\t<Name>deep</Name>\n\t\t</F1st_Leg>\n\t</F1st_Leg>\n"
      "\t<Inner>\n\t\t<Name>in</Name>\n\t</Inner>\n";
  EXPECT_EQ(record->toXMLString(), zkstring("<DataObject>\n") + fields + "</DataObject>\n");
  EXPECT_EQ(record->toString(), record->toXMLString());
  record->reset();
  record->setField(TestRecord::NAME, zkstring("x"));
  EXPECT_EQ(record->toXMLString(2), "\t<DataObject>\n\t\t<Name>x</Name>\n\t</DataObject>\n");
  EXPECT_EQ(filled()->inner.getElement(0)->toXMLString(2), "\t\t<Name>in</Name>\n");
}

/// Has its own form of the text within the tags.
class Framed : public TestRecord {
 public:
  using TestRecord::TestRecord;
  DataObject* createSectionElement(const zkstring& /*name*/, DataObjectSection* section) const override {
    return new Framed(section);
  }

 protected:
  zkstring toXMLStringImpl(int level) override { return "[" + TestRecord::toXMLStringImpl(level) + "]"; }
};

TEST(DataObject, honoursAnElementsOwnForm) {
  const SmartPtr<Framed> root(new Framed);
  DataObject* const leg = root->legs.createElement();
  root->legs.addElement(leg);
  leg->setField("No of", IntObject(1));
  EXPECT_EQ(root->toXMLString(),
            "<DataObject>\n[\t<F1st_Leg>\n[\t\t<No_of>1</No_of>\n]\t</F1st_Leg>\n]</DataObject>\n");
}

TEST(DataObject, clonesAndCopiesDeeply) {
  const Record source = filled();
  source->addRef();  // a clone starts with its own count
  const SmartPtr<Object> cloned(source->clone());
  source->decRef();
  auto* const clone = dynamic_cast<TestRecord*>(cloned.get());
  const Record copy(new TestRecord);
  copy->setField(TestRecord::COUNT, IntObject(9));
  source->setNull(TestRecord::COUNT);
  DataObjectBase::copy(source.get(), copy.get());
  EXPECT_EQ(copy->toXMLString(), source->toXMLString());  // null state too
  const zkstring before = clone->toXMLString();
  source->legs.getElement(0)->setField("Name", StringObject("changed"));
  EXPECT_EQ(clone->toXMLString(), before);
  EXPECT_EQ(clone->getRefCount(), 1);
  EXPECT_EQ(clone->legs.getElement(0)->getRootDataObject(), clone);
  EXPECT_EQ(copy->legs.getElement(0)->getFieldVal("Name")->toString(), "leg");
}
}  // namespace
}  // namespace zarvik
