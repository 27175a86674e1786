#include "DataObjectMetaInfo.h"

#include "Support.h"

namespace zarvik {
namespace {

const char* const names[] = {"ID", "a b-c", "Legs", "Header", "ID"};
const char* const types[] = {"String", "Integer", "Section", "DataObject", "Colour"};

TEST(FieldMetaInfo, manglesNames) {
  constexpr const char* rows[][2] = {{"", ""},           {"_a1", "_a1"},          {"9", "F9"},
                                     {"a b-c", "a_b_c"}, {"1st Leg", "F1st_Leg"}, {"-x\xE9", "F_x_"}};
  for (const auto& [name, mangled] : rows) EXPECT_EQ(FieldMetaInfo::computeMangledName(name), mangled) << name;
}

TEST(FieldMetaInfo, movesToAnyIndexButMinusOne) {
  FieldMetaInfo field("x", KelvaraTypes::STRING_TYPE, true);
  field.setIndex(2);
  field.setIndex(5);
  EXPECT_EQ(errorOf<TransformRuntimeException>([&] { field.setIndex(-1); }), "Index fo the field x is already set");
  EXPECT_EQ(field.getIndex(), 5);
}

TEST(DataObjectMetaInfo, isBuiltFromTables) {
  const DataObjectMetaInfo info("Order", names, types, 5, {1, 3});
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(info.getFieldName(i), names[i]);
    EXPECT_EQ(info.getFieldType(i), types[i]);
    EXPECT_EQ(info.getFieldMetaInfo(i)->getIndex(), i);
    EXPECT_EQ(info.isSection(i), i == 2 || i == 3);
    EXPECT_EQ(info.isSynthesized(i), i == 1 || i == 3);
    EXPECT_EQ(info.getFieldMetaInfo(i)->isOptional(), !info.isSection(i));
  }
  EXPECT_EQ(info.getFieldIndex("ID"), 0);  // the first of two
  EXPECT_EQ(info.getMangledName("a b-c"), "a_b_c");
  EXPECT_EQ(info.getSectionMetaInfo(2)->getMaxOccurs(), -1);
  EXPECT_EQ(info.getFieldName(0).data(), names[0]);  // no copy that threads would have to count
}

TEST(DataObjectMetaInfo, refusesWhatIsNotThere) {
  const DataObjectMetaInfo info("Order", names, types, 2);
  const DataObjectMetaInfo none("None", names, types, -1);
  EXPECT_EQ(none.getFieldCount(), 0);
  EXPECT_EQ(info.getFieldIndexIfExists("zz"), -1);
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { info.getFieldIndex("zz"); }), "Field with name zz not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { info.getFieldName(-1); }), "Field at index -1 not defined");
  EXPECT_EQ(errorOf<FieldNotFoundException>([&] { info.isSection(2); }), "Field at index 2 not defined");
}

TEST(DataObjectMetaInfo, aChildGoesOnBehindItsParent) {
  DataObjectMetaInfo parent("Parent", names, types, 3, {0});
  const char* const own[] = {"Own", "ID"};
  const char* const ownTypes[] = {"Long", "Long"};
  const DataObjectMetaInfo child("Child", &parent, own, ownTypes, 2, {1});
  EXPECT_EQ(child.getFieldCount(), 5);
  EXPECT_EQ(child.getFieldIndex("Own"), 3);
  EXPECT_EQ(child.getFieldIndex("ID"), 0);  // the parent's is not hidden
  EXPECT_TRUE(child.isSynthesized(0) && child.isSection(2) && child.isSynthesized(4));
}

TEST(DataObjectMetaInfo, keepsClonesOfFields) {
  DataObjectMetaInfo element("Leg", names, types, 1);
  FieldMetaInfo text("Text", KelvaraTypes::STRING_TYPE, false);
  SectionMetaInfo legs(&element, "Legs", 1, 4);
  FieldMetaInfo* const fields[] = {&text, &legs};
  const DataObjectMetaInfo info("Order", fields, 2);
  EXPECT_EQ(legs.getIndex(), -1);
  EXPECT_TRUE(legs.isOptional());  // odd on purpose
  const SectionMetaInfo* const kept = info.getSectionMetaInfo(1);
  ASSERT_NE(kept, nullptr);
  EXPECT_TRUE(kept->getIndex() == 1 && kept->getMinOccurs() == 1 && kept->getMaxOccurs() == 4);
  EXPECT_EQ(kept->getDataObjectMetaInfo(), &element);
}
}  // namespace
}  // namespace zarvik
