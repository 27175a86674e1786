#include <stdexcept>

#include "Exceptions.h"
#include "TestRecord.h"

namespace zarvik {
namespace {

class DataObjectSectionTest : public testing::Test {
 protected:
  ~DataObjectSectionTest() noexcept override {}  // as tests want it; what they hold is more lax
  const SmartPtr<TestRecord> holder{new TestRecord};
  TestRecord& root = *holder;
  DataObjectSectionImpl& list = root.legs;
  DataObjectSingleElementSectionImpl& single = root.inner;
};

TEST_F(DataObjectSectionTest, assertsItsBounds) {
  list.initialize(&root, "Legs", 1, 2);
  EXPECT_EQ(errorOf<SectionConstraintException>([&] { list.assertConstraints(); }),
            "The number of elements in the section 'Legs' is less than '1'.");
  root.add(list, "a");
  list.assertConstraints();
  root.add(list, "b");
  list.assertConstraints();
  root.add(list, "c");
  EXPECT_EQ(errorOf<SectionConstraintException>([&] { list.assertConstraints(); }),
            "The number of elements (Legs) in the section '2' is greater than {2}.");
  list.initialize(&root, "Legs", 0, -1);
  list.assertConstraints();
}

TEST_F(DataObjectSectionTest, refusesPositionsOutside) {
  TestRecord* const leg = root.add(list, "a");
  const char* const above = "Error accessing element of section 1st Leg.1st Leg. Section index out of bound, size = ";
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { leg->legs.getElement(3); }),
            above + std::string("0, index accessed = 3"));
  EXPECT_THROW(list.getElement(5), std::out_of_range);
  EXPECT_THROW(list.getElement(-1), std::out_of_range);
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { list.removeElement(6); }), "out of bounds ");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { list.removeElement(-1); }), "");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { list.removeElement(1000); }), "");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { leg->legs.removeLastElement(); }),
            "Error accessing last element of section 1st Leg.1st Leg. Section index out of bound, size = 0");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { single.removeLastElement(); }),
            "Error accessing last element of section Inner. Section index out of bounds, size = 0");
  root.add(single, "in");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { single.getElement(1); }),
            "Error accessing element of section Inner. Section index out of bound, size = 0, index accessed = 1");
}

TEST_F(DataObjectSectionTest, addsAndRemoves) {
  const SmartPtr<TestRecord> stranger(new TestRecord);
  EXPECT_EQ(errorOf<IllegalArgumentException>([&] { list.addElement(stranger.get()); }),
            "The parent of the element added is not this section");
  single.addElement(stranger.get());  // this one does not look
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { single.addElement(stranger.get()); }),
            "Cannot add more than one element to this section");
  EXPECT_EQ(single.getElementIndex(stranger.get()), 0);
  EXPECT_FALSE(single.removeElement(1));
  EXPECT_TRUE(single.removeElement(0));
  EXPECT_TRUE(single.removeElement(0));
  EXPECT_EQ(single.getElementIndex(nullptr), -1);
  EXPECT_EQ(stranger->getRefCount(), 1);

  TestRecord* const second = (root.add(list, "a"), root.add(list, "b"));
  EXPECT_EQ(list.getElementIndex(second), 1);
  EXPECT_TRUE(list.removeElement(0));
  EXPECT_EQ(list.getElement(0), second);
  list.removeLastElement();
  EXPECT_EQ(list.getElementCount(), 0);
}

TEST_F(DataObjectSectionTest, assignShares) {
  root.add(list, "a");
  const SmartPtr<TestRecord> other(new TestRecord);
  other->add(other->legs, "gone");
  DataObjectSection::assign(&other->legs, &list);
  EXPECT_EQ(other->legs.getElement(0), list.getElement(0));
  EXPECT_EQ(list.getElement(0)->getParentSection(), &other->legs);
  EXPECT_EQ(other->legs.getElementCount(), 1);
}

TEST_F(DataObjectSectionTest, clonesDeeply) {
  root.add(list, "a");
  root.add(single, "in");
  const std::unique_ptr<DataObjectSection> lists(list.clone());
  const std::unique_ptr<DataObjectSection> singles(single.clone());
  EXPECT_EQ(lists->getElement(0)->getParentSection(), lists.get());
  EXPECT_EQ(singles->getElement(0)->getParentSection(), nullptr);  // odd on purpose
  EXPECT_EQ(lists->getParent(), nullptr);
  EXPECT_EQ(lists->getName(), "1st Leg");
  EXPECT_NE(lists->getElement(0), list.getElement(0));
  EXPECT_EQ(lists->getElement(0)->getFieldVal("Name")->toString(), "a");
}

TEST_F(DataObjectSectionTest, writesXML) {
  root.add(list, "a");
  root.add(list, "b");
  EXPECT_EQ(list.toXMLString("Tag", 1),
            "\t<Tag>\n\t\t<Name>a</Name>\n\t</Tag>\n\t<Tag>\n\t\t<Name>b</Name>\n\t</Tag>\n");
  EXPECT_EQ(list.toXMLString(), list.toXMLString("F1st_Leg", 1));
  EXPECT_EQ(single.toXMLString(), "");
}

TEST_F(DataObjectSectionTest, travelsAsAValue) {
  root.add(list, "a");
  SectionObject owning(list.clone(), true);
  const SmartPtr<Object> second(owning.clone());
  EXPECT_EQ(second->toString(), "Records = 1");
  const SectionObject reference(list);
  owning.setObject(&reference);  // lets go of its own
  EXPECT_EQ(owning.getSection(), &list);
  EXPECT_EQ(errorOf<ClassCastException>([&] { owning.setObject(nullptr); }),
            "Cannot cast NULL to zarvik::SectionObject");
}
}  // namespace
}  // namespace zarvik
