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
      {FIXType::formatUTCTimeOnly, FIXType::parseUTCTimeOnly, {1970, 1, 1, 4, 5, 6, 0}, "04:05:06"},
      {FIXType::formatUTCTimeOnly, FIXType::parseUTCTimeOnly, {1970, 1, 1, 4, 5, 6, 70}, "04:05:06.070"},
      {FIXType::formatLocalMktTimeOnly, FIXType::parseLocalMktTimeOnly, {1970, 1, 1, 4, 5, 6, 70}, "04:05:06.070"},
      {FIXType::formatUTCDate, FIXType::parseUTCDate, {2001, 2, 3, 0, 0, 0, 0}, "20010203"},
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
