#include "MessageFormatter.h"

#include "ObjectList.h"
#include "Support.h"

namespace zarvik {
namespace {

TEST(MessageFormatter, replacesPlaceholders) {
  constexpr const char* rows[][2] = {
      {"", ""},
      {"a{0}b", "axb"},
      {"{2}{1}{0}{0}", "null7xx"},
      {"a{3}b", "a{3}b"},
      {"a{zz}b", "a{zz}b"},
      {"a{-1}b", "a{-1}b"},
      {"{}", "{}"},
      {"a{0", "a{0"},
      {"{", "{"},
      {"{{0}}", "{x}"},
      {"{+}{-}{00001}", "xx7"},                       // a lone sign reads as 0
      {"{4294967296}{2147483648}", "x{2147483648}"},  // wraps to 0; overflows
      {"''{0}''", "'x'"},
      {"'{0}'", "'x'"},
      {"it's", "it's"},
      {"it''s", "it's"},
      {"'''", "''"},
      {"''''", "''"},
      {"{'' ''}", "{' '}"},
      {"ends in '", "ends in '"},
  };
  ObjectList arguments("x", 7);
  arguments.add(static_cast<Object*>(nullptr));
  for (const auto& [pattern, text] : rows) EXPECT_EQ(MessageFormatter::format(pattern, arguments), text) << pattern;
}

TEST(MessageFormatter, insertsTextsAsTheyAre) {
  EXPECT_EQ(MessageFormatter::format("{0}{1}", ObjectList("''{1}", "b")), "''{1}b");
  EXPECT_EQ(MessageFormatter::format("{0}", ObjectList()), "{0}");
}

}  // namespace
}  // namespace zarvik
