#include "fix/FIXInputParser.h"

#include "TestRecord.h"

namespace zarvik {
namespace {

struct OpenParser : FIXInputParser {
  using InputParser::parse;
  void parse(ExternalObject* /*object*/, const Binary& /*bytes*/, TransformContext& /*context*/) override {}
  ExternalObject* parse(const Binary& /*bytes*/, TransformContext& /*context*/) override { return nullptr; }
  using FIXInputParser::assertConstraints;
  using FIXInputParser::assertNotNull;
  using FIXInputParser::assertSectionEmpty;
  using FIXInputParser::assertTagNew;
  using FIXInputParser::ensureNotNull;
  using FIXInputParser::isNull;
  using FIXInputParser::missingTag;
};

template <class Action>
std::string failureOf(Action action) {
  return errorOf<FieldParsingException>(action);
}

TEST(FIXInputParser, namesFieldAndTag) {
  const OpenParser parser;
  TestRecord record;
  DataObjectSection* const legs = record.getSection(TestRecord::LEGS);

  parser.assertTagNew(&record, TestRecord::NAME, 55);
  EXPECT_EQ(failureOf([&] { parser.assertNotNull(&record, TestRecord::NAME, 55); }), "Tag 'Name[55]' expected.");
  record.setField(TestRecord::NAME, zkstring("x"));
  parser.assertNotNull(&record, TestRecord::NAME, 55);
  EXPECT_EQ(failureOf([&] { parser.assertTagNew(&record, TestRecord::NAME, 55); }), "Duplicate Tag 'Name[55]'.");

  parser.assertSectionEmpty(legs, 78);
  parser.assertConstraints(&record, TestRecord::LEGS, 555);
  for (int i = 0; i < 3; ++i) record.add(*legs, "leg");
  EXPECT_EQ(failureOf([&] { parser.assertSectionEmpty(legs, 78); }), "Duplicate section Tag '78'.");
  const std::string ofSection = errorOf<SectionConstraintException>([&] { legs->assertConstraints(); });
  EXPECT_EQ(errorOf<SectionConstraintException>([&] { parser.assertConstraints(&record, TestRecord::LEGS, 555); }),
            "Tag '1st Leg[555]' expected. " + ofSection);

  parser.missingTag("x", 55);
  EXPECT_EQ(failureOf([&] { parser.missingTag("", 55); }), "Tag '55' expected.");
  EXPECT_EQ(failureOf([&] { parser.missingTag(7); }), "Tag '7' expected.");
  EXPECT_TRUE(parser.isNull("") && !parser.isNull(" "));
}

TEST(FIXInputParser, refusesEmptyValues) {
  const OpenParser parser;
  TestRecord record;
  parser.ensureNotNull("x", &record, TestRecord::NAME);
  parser.ensureNotNull(" ", "Name");
  const auto fieldOf = [](auto action) {
    try {
      action();
    } catch (const FieldParsingException& error) {
      return std::string(error.getMessage().c_str()) + " " + error.getFFieldName().c_str();
    }
    return std::string();
  };
  EXPECT_EQ(fieldOf([&] { parser.ensureNotNull("", &record, TestRecord::NAME); }), "Field 'Name' cannot be null. Name");
  EXPECT_EQ(fieldOf([&] { parser.ensureNotNull("", "Symbol"); }), "Field 'Symbol' cannot be null. Symbol");
  EXPECT_EQ(failureOf([&] { parser.ensureNotNull("", &record, 99); }), "Null value error while parsing a field");
}

}  // namespace
}  // namespace zarvik
