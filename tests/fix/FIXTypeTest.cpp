#include "fix/FIXType.h"

#include "Support.h"

namespace zarvik {
namespace {

/// Each row: the value is written as `text`, and `text` is read as the value, but for the fields it does not have.
TEST(FIXType, readsWhatItWrites) {
  const struct {
    zkstring& (*format)(const DateTime&, zkstring&);
    DateTime (*parse)(const zkstring&);
    DateTime value;
    const char* text;
  } rows[] = {
      {FIXType::formatUTCTimestamp, FIXType::parseUTCTimestamp, {2001, 2, 3, 4, 5, 6, 0}, "20010203-04:05:06"},
      {FIXType::formatUTCTimestamp, FIXType::parseUTCTimestamp, {2001, 2, 3, 4, 5, 6, 7}, "20010203-04:05:06.007"},
      {FIXType::formatLocalMktTimeOnly, FIXType::parseLocalMktTimeOnly, {1970, 1, 1, 4, 5, 6, 70}, "04:05:06.070"},
      {FIXType::formatLocalMktDate, FIXType::parseLocalMktDate, {2001, 2, 3, 0, 0, 0, 0}, "20010203"},
      {FIXType::formatLocalMktTimestamp,
       FIXType::parseLocalMktTimestamp,
       {2001, 2, 3, 4, 5, 6, 0},
       "20010203-04:05:06"},
      {FIXType::formatmonth_year, FIXType::parsemonth_year, {2001, 2, 1, 0, 0, 0, 0}, "200102"},
  };
  for (const auto& row : rows) {
    zkstring text("before");
    EXPECT_EQ(&row.format(row.value, text), &text);
    EXPECT_EQ(text, row.text);
    EXPECT_EQ(row.parse(row.text), row.value) << row.text;
  }
  zkstring text;
  const DateTime precise(2001, 2, 3, 4, 5, 6, 7);
  EXPECT_EQ(FIXType::formatLocalMktTimestamp(precise, text), "20010203-04:05:06");
  EXPECT_THROW(FIXType::parseLocalMktTimestamp("20010203-04:05:06.007"), TransformRuntimeException);
  EXPECT_EQ(FIXType::formatUTCTimestamp_int64(precise, text), std::to_string(precise.toTimestamp()).c_str());
  EXPECT_EQ(FIXType::parseUTCTimestamp_int64(text), precise);
}

/// The quick way of dates against the patterns, ordinary dates and others.
TEST(FIXType, writesDatesAsThePatternsDo) {
  std::mt19937 random(3);
  const auto upTo = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
  for (int i = 0; i < 5000; ++i) {
    const int year = i % 10 == 0 ? upTo(37480) - 4712 : upTo(10000);
    const DateTime value(Date(year, 1 + upTo(12), 1 + upTo(21)),
                         Time(upTo(24), upTo(60), upTo(60), i % 3 == 0 ? 0 : upTo(1000)));
    const zkstring end(value.getMilliSeconds() == 0 ? "HH:mm:ss" : "HH:mm:ss.SSS");
    zkstring text;
    EXPECT_EQ(FIXType::formatUTCTimestamp(value, text), Parsing::formatDate(value, "yyyyMMdd-" + end));
    EXPECT_EQ(FIXType::formatUTCTimeOnly(value, text), Parsing::formatDate(value, end));
    EXPECT_EQ(FIXType::formatUTCDate(value, text), Parsing::formatDate(value, "yyyyMMdd"));
  }
}

TEST(FIXType, knowsABooleanByItsFirstByte) {
  zkstring text;
  EXPECT_EQ(FIXType::formatBoolean(true, text), "Y");
  EXPECT_EQ(FIXType::formatBoolean_4_1(false, text), "N");
  EXPECT_TRUE(FIXType::parseBoolean("Yes"));
  EXPECT_FALSE(FIXType::parseBoolean_4_1("N"));
  EXPECT_EQ(errorOf<FIXParsingException>([] { FIXType::parseBoolean(""); }),
            "Illegal boolean value, it can't be empty");
  EXPECT_EQ(errorOf<FIXParsingException>([] { FIXType::parseBoolean_4_1("y"); }), "Illegal boolean value y");
}

}  // namespace
}  // namespace zarvik
