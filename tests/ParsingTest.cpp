#include "Parsing.h"

#include <array>
#include <bit>
#include <cstdio>
#include <cstdlib>

#include "Support.h"

namespace zarvik {
namespace {

bool sameBits(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

TEST(parseDouble, readsAsTheCLibrary) {
  std::istringstream numbers(
      "1.5 -0 .5 5. . - + +1.5 +-1 --1 1-2 1e5 1E+5 1e 1e+ 1e5.5 e5 -.e1 1.2.3 1e400 -1e400 1e-400 -1e-400 5e-324 "
      "2e-324 3e-324 1.7976931348623157e308 1.7976931348623159e308 2.2250738585072011e-308 9007199254740993 1e23 "
      "0.1000000000000000055511151231257827021181583404541015625 00000000000000000000000000000000000000000000000001.5 "
      "+0000000000000000000000000000000000000000000000000001e1 1e99999999999999999999 0e99999999999999999999");
  for (std::string number; numbers >> number;) {
    EXPECT_PRED2(sameBits, Parsing::parseDouble(zk(number)), std::strtod(number.c_str(), nullptr)) << number;
  }
  EXPECT_EQ(Parsing::parseDouble(""), 0);
}

TEST(parseDouble, readsRandomTextsAsTheCLibrary) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 200'000; ++i) {
    std::string number;
    if (i % 2 == 0) {  // a number that may lie anywhere
      char digits[40];
      std::snprintf(digits, sizeof digits, "%.*g", 1 + static_cast<int>(random() % 20),
                    std::bit_cast<double>(random()));
      number = digits;
      if (number.find('n') != std::string::npos) continue;
    } else {  // anything that passes the look at the characters
      for (auto n = random() % 12; n > 0; --n) number += "0123456789+-.eE"[random() % 15];
    }
    ASSERT_PRED2(sameBits, Parsing::parseDouble(zk(number)), std::strtod(number.c_str(), nullptr)) << number;
  }
}

TEST(Parsing, tellsWhatItCannotRead) {
  for (const char* word : {"inf", "-infinity", "nan", "-nan", "0x1p3", "1 ", " 1", "1,5", "1f", "-x", "x"}) {
    EXPECT_EQ(errorOf<TransformException>([&] { Parsing::parseDouble(word); }),
              std::string("Cannot convert '") + word + "' to double");
  }
  EXPECT_EQ(errorOf<TransformException>([&] { Parsing::parseFloat(zkstring("1\0", 2)); }),
            std::string("Cannot convert '1\0' to double", 29));
  EXPECT_EQ(errorOf<FieldParsingException>([] { Parsing::parseBool("true "); }), "Cannot convert true  to boolean");
  EXPECT_EQ(errorOf<FieldParsingException>([] { Parsing::parseChar(""); }), "Cannot convert  to char");
  for (const auto& [stored, type, shown] : std::initializer_list<std::array<const char*, 3>>{
           {"ab", "Character", "Character"}, {"ab", "Section", "Section"}, {"", "Integer", "int"}}) {
    EXPECT_EQ(errorOf<TransformException>([&, s = stored, t = type] { Parsing::toRuntimeObject(s, t); }),
              std::string("Cannot convert '") + stored + "' to " + shown);
  }
}

TEST(Parsing, readsPlainValues) {
  EXPECT_FALSE(Parsing::parseBool(zkstring("False\0x", 7)));
  const zkstring bytes("a\0b", 3);
  EXPECT_EQ(Parsing::parseBinary(bytes).toString(), bytes);
  EXPECT_NE(Parsing::parseBinary(bytes).data(), bytes.data());
  EXPECT_EQ(Parsing::dateToString(Parsing::parseDate("31.12.2024", "dd.MM.yyyy")), "Dec 31, 2024");
}

TEST(Parsing, unboxes) {
  const IntObject five(5);
  const DoubleObject half(2.5);
  const NumberObject* noNumber = nullptr;
  EXPECT_EQ(Parsing::doubleValue(&five), 5.0);
  EXPECT_EQ(Parsing::intValueWithNull(&half), 2);
  EXPECT_EQ(errorOf<TransformNullValueException>([&] { Parsing::longValue(noNumber); }), "Null value");
  EXPECT_EQ(Parsing::longValueWithNull(noNumber), 0);
  EXPECT_EQ(Parsing::stringValueWithNull(nullptr), Parsing::EMPTY);
}

TEST(Parsing, goesFromStoredTextToBoxAndBack) {
  constexpr const char* rows[][4] = {
      {"String", "", "", "String"},
      {"Integer", "-12", "-12", "Integer"},
      {"Long", "", "0", "Long"},
      {"BigInteger", "12345678901234567890123", "12345678901234567890123", "BigInteger"},
      {"BigDecimal", "12.50", "12.5", "BigDecimal"},
      {"Binary", "0aFF", "0AFF", "Binary"},
      {"Float", "0.1", "0.1", "Float"},
      {"Double", "1e3", "1000.0", "Double"},
      {"Boolean", "TRUE", "true", "Boolean"},
      {"Character", "x", "x", "Character"},
      {"DateTime", "20241231", "2024-12-31T00:00:00", "DateTime"},
      {"DateTime", "01:02:03.004", "1970-01-01T01:02:03.004", "DateTime"},
      {"DateTime", "20241231-01:02:03.004", "2024-12-31T01:02:03.004", "DateTime"},
      {"DateOnly", "20241231", "2024-12-31", "DateTime"},
      {"TimeOnly", "01:02:03.000", "01:02:03", "DateTime"},
      {"TimeOnly", "01:02:03.004", "01:02:03.004", "DateTime"},
  };
  for (const auto& [type, stored, back, boxType] : rows) {
    const SmartPtr<Object> box(Parsing::toRuntimeObject(stored, type));
    EXPECT_EQ(box->getObjectType(), boxType) << type;
    EXPECT_EQ(Parsing::runtimeObjectToString(box.get(), type), back) << type;
  }
  for (const char* type : {"DateTime", "DateOnly", "TimeOnly", "Character"}) {
    EXPECT_EQ(Parsing::toRuntimeObject("", type), nullptr) << type;
  }
  const SmartPtr<Object> fraction(Parsing::toRuntimeObject("2.5", "BigInteger"));
  EXPECT_EQ(fraction->getBigInteger(), BigInteger("2.5"));  // nothing is cut off
  DateObject date(DateTime(2024, 12, 31, 1, 2, 3, 4));
  EXPECT_EQ(Parsing::runtimeObjectToString(&date, ""), "2024-12-31T01:02:03.004");
}

TEST(Parsing, formatsDatesOfAnyLength) {
  const DateTime date(2024, 12, 31, 1, 2, 3, 4);
  zkstring out("yyyyMMdd");
  Parsing::formatDate(date, out, out);
  EXPECT_EQ(out, "20241231");
  Parsing::formatDate(date, zkstringliteral("yyyyMMdd").substr(0, 6), out);  // not to the end of the constant
  EXPECT_EQ(out, "202412");
  Parsing::formatDate(date, zkstring(5000, '-'), out);
  EXPECT_EQ(out, zkstring(5000, '-'));
}

TEST(Parsing, readsAndWritesUtfOneWayEach) {
  std::istringstream in(std::string("\0\3abc\1\0", 7) + std::string(256, 'x') + "\xff\xffyy");
  EXPECT_EQ(Parsing::readUTF(in), "abc");
  EXPECT_EQ(Parsing::readUTF(in), zkstring(256, 'x'));
  EXPECT_EQ(Parsing::readUTF(in), "yy");  // -257 is 65279, more than there is
  EXPECT_EQ(Parsing::readUTF(in), "");
  std::ostringstream out;
  Parsing::writeUTF(out, "abc");
  Parsing::writeUTF(out, zkstring(0x0201, 'x'));
  EXPECT_EQ(out.str(), "768abc258" + std::string(258, 'x'));
}
}  // namespace
}  // namespace zarvik
