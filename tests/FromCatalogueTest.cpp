#include "FromCatalogue.h"

#include "Support.h"

namespace zarvik {
namespace {

TEST(FromCatalogue, givesTextAndCodeOfTheEntry) {
  const std::tuple<TransformException, const char*, const char*> rows[] = {
      {fromCatalogue<FieldNotFoundException>("SRT178", {"Legs"}), "SRT38", "No section with name 'Legs'."},
      {fromCatalogue<SectionConstraintException>("SRT302", {5, zkstring("Legs"), -1}), "SRT65",
       "The number of elements (5) in the section 'Legs' is greater than -1."},
      {fromCatalogue<TransformException>("SRT552", {"x"}), "SRT85", "'x'"},
      {fromCatalogue<TransformException>("SRT127", {"only one"}), "SRT20", "Cannot convert 'only one' to '{1}'."},
      {fromCatalogue<TransformException>("SRT104"), "SRT04", "Error creating  batch context"},
      {fromCatalogue<TransformException>("SRT999", {"x"}), "", ""},
  };
  for (const auto& [error, code, message] : rows) {
    EXPECT_EQ(error.getMessage(), message);
    EXPECT_EQ(error.getErrorCode(), code);
  }
}

}  // namespace
}  // namespace zarvik
