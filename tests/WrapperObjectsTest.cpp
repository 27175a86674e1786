#include "WrapperObjects.h"

#include "Support.h"

namespace zarvik {
namespace {

constexpr int lowestInt = std::numeric_limits<int>::min();
constexpr __int64 lowestLong = std::numeric_limits<__int64>::min();

TEST(NumberObject, convertsByTheLanguagesCasts) {
  EXPECT_EQ(DoubleObject(2.9).getInt(), 2);
  EXPECT_EQ(DoubleObject(-2.9).getInt(), -2);
  EXPECT_EQ(LongObject((__int64{1} << 32) + 1).getInt(), 1);
  IntObject number;
  number.setLong((__int64{1} << 32) + 1);
  EXPECT_EQ(number.getValue(), 1);
  number.setFloat(-7.9F);
  EXPECT_EQ(number.intValue(), -7);

  // Rounded twice: by way of double the odd last bit is lost before the half is seen.
  const __int64 twice = (__int64{1} << 60) + (__int64{1} << 36) + 1;
  FloatObject rounded;
  rounded.setLong(twice);
  EXPECT_EQ(rounded.getValue(), static_cast<float>(__int64{1} << 60));
  EXPECT_EQ(LongObject(twice).getFloat(), static_cast<float>(__int64{1} << 60));
}

TEST(NumberObject, givesTheLowestValueOutOfRange) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  constexpr std::tuple<double, int, __int64> rows[] = {
      {2147483647.9, 2147483647, 2147483647},
      {2147483648.0, lowestInt, 2147483648},
      {-2147483648.9, lowestInt, -2147483648},
      {-2147483649.0, lowestInt, -2147483649},
      {9223372036854774784.0, lowestInt, 9223372036854774784},
      {9223372036854775808.0, lowestInt, lowestLong},
      {-9223372036854775808.0, lowestInt, lowestLong},
      {-1e300, lowestInt, lowestLong},
      {inf, lowestInt, lowestLong},
      {std::numeric_limits<double>::quiet_NaN(), lowestInt, lowestLong},
  };
  for (const auto& [number, asInt, asLong] : rows) {
    EXPECT_EQ(DoubleObject(number).getInt(), asInt) << number;
    EXPECT_EQ(DoubleObject(number).getLong(), asLong) << number;
    LongObject box;
    box.setDouble(number);
    EXPECT_EQ(box.getValue(), asLong) << number;
  }
  EXPECT_EQ(FloatObject(2147483648.0F).getInt(), lowestInt);
  EXPECT_EQ(DoubleObject(1e300).getFloat(), std::numeric_limits<float>::infinity());
}

/// One box of each class, by its type word and text.
struct Sample {
  const char *type, *text;
  SmartPtr<Object> box;
  SmartPtr<Object> other;  ///< of the same class, with its default value
};

template <class Box, class T>
Sample sample(const char* type, const char* text, const T& value) {
  return {type, text, new Box(value), new Box()};
}

TEST(WrapperObject, travelsAsAnObject) {
  const DateTime date(2024, 12, 31, 1, 2, 3, 4);
  Sample samples[] = {
      sample<IntObject>("Integer", "-5", -5),
      sample<LongObject>("Long", "123456789012", 123456789012),
      sample<DoubleObject>("Double", "2.5", 2.5),
      sample<FloatObject>("Float", "0.1", 0.1F),
      sample<StringObject>("String", "text", zkstring("text")),
      sample<CharObject>("Character", "c", 'c'),
      sample<BoolObject>("Boolean", "true", true),
      sample<BigIntegerObject>("BigInteger", "120", BigInteger(120)),
      sample<BigDecimalObject>("BigDecimal", "120.0", BigDecimal(120)),
      sample<BinaryObject>("Binary", "bytes", Binary(zkstring("bytes"))),
      sample<DateObject>("DateTime", "2024-12-31T01:02:03.004", date),
      sample<RawMessageObject>("RawMessage", "body", RawMessage(new StringInputSource("body"))),
      sample<ISODateObject>("ISODateTime", "2024-12-31T01:02:03.004", ISODateTime(date, 60)),
  };
  for (Sample& one : samples) {
    EXPECT_EQ(one.box->getObjectType(), one.type);
    EXPECT_EQ(one.box->toString(), one.text);
    const SmartPtr<Object> copy(one.box->clone());
    EXPECT_EQ(copy->getObjectType(), one.type);
    EXPECT_EQ(copy->toString(), one.text);
    const zkstring before = one.other->toString();
    one.other->setObject(one.box.get());
    EXPECT_EQ(one.other->toString(), one.text);
    EXPECT_NE(before, one.text);

    // A stranger is refused in its own words and leaves the value alone.
    const StringObject string("s");
    const CharObject character('x');
    const Object& stranger = zkstring(one.type) == "String" ? static_cast<const Object&>(character) : string;
    EXPECT_EQ(errorOf<TransformException>([&] { one.box->setObject(&stranger); }),
              std::string("Cannot convert ") + stranger.getObjectType().c_str() + " to " + one.type);
    EXPECT_EQ(one.box->toString(), one.text);
  }
}

TEST(WrapperObject, offersItsOwnKindAlone) {
  EXPECT_EQ(errorOf<TransformException>([] { CharObject('1').getInt(); }), "Cannot convert Character to Integer");
  EXPECT_EQ(errorOf<TransformException>([] { StringObject("1").setInt(1); }), "Cannot convert String to Integer");
  EXPECT_EQ(errorOf<TransformException>([] { IntObject(1).getString(); }), "Cannot convert Integer to String");
  EXPECT_EQ(errorOf<TransformException>([] { ISODateObject().getDate(); }), "Cannot convert ISODateTime to DateTime");
  ISODateObject moment;
  moment.setISODate(ISODateTime(DateTime(), -90));
  EXPECT_EQ(moment.getValue().getTimeZoneOffset(), -90);
}
}  // namespace
}  // namespace zarvik
