#include "GenericDataObject.h"

#include "TestRecord.h"

namespace zarvik {
namespace {

using Generic = SmartPtr<GenericDataObject>;

Generic fresh() { return new GenericDataObject(TestRecord::metaInfo(), false); }

TEST(GenericDataObject, keepsAClone) {
  const Generic record = fresh();
  const StringObject text("x");
  record->setField("Name", text);
  record->setField("Name", StringObject("y"));
  const SmartPtr<Object> first(record->getField(0));
  EXPECT_EQ(first->toString(), "y");
  EXPECT_NE(first.get(), SmartPtr<Object>(record->getField(0)).get());
  StringObject target;
  EXPECT_TRUE(record->getField(0, target));
  EXPECT_FALSE(record->getField(1, target));
  EXPECT_EQ(target.getValue(), "y");
  record->reset();
  EXPECT_FALSE(record->isNull(0));
  record->setNull(0);
  EXPECT_TRUE(record->isEmpty());
}

TEST(GenericDataObject, sectionsAppearOnFirstAccess) {
  const Generic record = fresh();
  DataObjectSection* const legs = record->getSection("1st Leg");
  EXPECT_EQ(record->getSection(TestRecord::LEGS), legs);
  EXPECT_EQ(dynamic_cast<DataObjectSectionImpl*>(legs)->getMaxOccurs(), 2);
  EXPECT_FALSE(record->isEmpty());  // odd on purpose
  DataObject* const leg = legs->createElement();
  legs->addElement(leg);
  leg->setField("Name", StringObject("leg"));
  EXPECT_EQ(record->toXMLString(), "<TestRecord>\n\t<F1st_Leg>\n\t\t<Name>leg</Name>\n\t</F1st_Leg>\n</TestRecord>\n");

  const SmartPtr<Object> copy(record->clone());
  auto* const other = dynamic_cast<GenericDataObject*>(copy.get());
  leg->setField("Name", StringObject("changed"));
  EXPECT_EQ(other->getSection(TestRecord::LEGS)->getParent(), other);
  EXPECT_EQ(other->getSection(TestRecord::LEGS)->getElement(0)->getFieldVal("Name")->toString(), "leg");
}

TEST(GenericDataObject, tellsWhatIsWrong) {
  const Generic record = fresh();
  DataObjectSection* const legs = record->getSection("1st Leg");
  const SmartPtr<DataObject> leg(legs->createElement());
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { record->isNull(4); }), "No valid field at index 4 for Root");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { leg->isNull(-1); }), "No valid field at index -1 for 1st Leg");
  EXPECT_EQ(errorOf<TransformNullValueException>([&] { leg->getFieldCheckNull(0); }),
            "Attempt to access field '1st Leg.Name' with NULL value");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { record->getSection("Name"); }), "Name is not a section");
  record->setField("Name", StringObject("x"));
  EXPECT_EQ(errorOf<ClassCastException>([&] { record->getSection("Name"); }),
            "Cannot cast zarvik::StringObject* to zarvik::SectionObject");
  EXPECT_EQ(errorOf<FieldTypeMismatchException>([&] { record->createSectionElement("Name", legs); }),
            "Name is not a section");
}

TEST(ExternalObject, holdsItsParts) {
  const SmartPtr<TestRecord> data(new TestRecord);
  data->setField("No of", IntObject(1));
  const SmartPtr<ExternalObject> message(new ExternalObject(nullptr, data.get(), nullptr));
  EXPECT_TRUE(message->isNotNull(0) && message->isNotNull(1) && message->isNotNull(2));
  EXPECT_EQ(message->toXMLString(),
            "<ExternalObject>\n\t<DataObject>\n\t\t<No_of>1</No_of>\n\t</DataObject>\n</ExternalObject>\n");
  EXPECT_EQ(message->getFieldVal("Data").get(), static_cast<Object*>(data.get()));
  EXPECT_EQ(data->getRefCount(), 2);
  const SmartPtr<Object> cloned(message->clone());
  message->reset();
  EXPECT_TRUE(data->isNull("No of"));
  EXPECT_FALSE(dynamic_cast<ExternalObject*>(cloned.get())->getData()->isNull("No of"));
  message->setField("Header", *data);
  EXPECT_EQ(message->getHeader(), data.get());
  EXPECT_EQ(errorOf<ClassCastException>([&] { message->setField(2, IntObject(1)); }),
            "Cannot cast zarvik::IntObject* to zarvik::DataObject");
  IntObject box;
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { message->getField(1, box); }), "Field index out of bounds - 1");
  const SmartPtr<ExternalObject> none(new ExternalObject);
  EXPECT_TRUE(none->isEmpty());
  EXPECT_EQ(errorOf<ClassCastException>([&] { none->clone(); }), "Cannot cast NULL to zarvik::DataObject");
}
}  // namespace
}  // namespace zarvik
