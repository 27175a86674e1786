#include "formula/TextFunctions.h"

#include <cctype>
#include <climits>
#include <random>
#include <vector>

#include "../Allocations.h"
#include "../Support.h"
#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "date/DateTime.h"

namespace zarvik {
namespace {

using T = TextFunctions;

const zkstring abcde("abcde");
constexpr int edges[] = {INT_MIN, -1, 0, 1, 2, 4, 5, 6, INT_MAX};

std::string standard(const zkstring& text) { return std::string(text.data(), text.length()); }

/// Every byte, in order.
zkstring allBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return zkstring(bytes.data(), 256);
}

TEST(TextFunctions, charAtAloneFails) {
  EXPECT_EQ(T::charAt(abcde, 4), 'e');
  for (const int index : {INT_MIN, -1, 5, INT_MAX}) {
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { T::charAt(abcde, index); }), "Index out of range of string.");
  }
}

/// The parts and edits against the standard string's, over all positions and counts at the edges.
TEST(TextFunctions, clampsPositionsAndCounts) {
  const std::string text = "abcde";
  for (const int n : edges) {
    const std::size_t count = static_cast<std::size_t>(std::clamp(n, 0, 5));
    EXPECT_EQ(T::left(abcde, n), text.substr(0, count).c_str());
    EXPECT_EQ(T::right(abcde, n), text.substr(5 - count).c_str());
    EXPECT_EQ(T::insert(abcde, n, zkstring("--")), std::string(text).insert(count, "--").c_str());
    const bool inside = n >= 0 && n < 5;
    EXPECT_EQ(T::deleteCharAt(abcde, n), (inside ? std::string(text).erase(count, 1) : text).c_str());
    EXPECT_EQ(T::replace(abcde, n, 'X'), (inside ? std::string(text).replace(count, 1, "X") : text).c_str());
    for (const int m : edges) {
      const std::size_t length = static_cast<std::size_t>(std::max(m, 0));
      EXPECT_EQ(T::mid(abcde, n, m), text.substr(count, length).c_str()) << n << ' ' << m;
      const bool edits = inside && m >= 0;
      EXPECT_EQ(T::deleteStr(abcde, n, m), (edits ? std::string(text).erase(count, length) : text).c_str());
      EXPECT_EQ(T::replace(abcde, n, m, "XYZ"),
                (edits ? std::string(text).replace(count, length, "XYZ") : text).c_str());
    }
  }
  EXPECT_EQ(T::replace("", 0, 0, "x"), "");
  EXPECT_EQ(T::insert("", 3, 'x'), "x");
  EXPECT_EQ(T::insert(abcde, 1, 12), "a12bcde");
  EXPECT_EQ(T::insert(abcde, 1, 0.5F), "a0.5bcde");
  EXPECT_EQ(T::insert(abcde, 1, 1.5), "a1.5bcde");
}

TEST(TextFunctions, cutsAtAPattern) {
  EXPECT_EQ(T::leftStr("a=b=c", "="), "a");
  EXPECT_EQ(T::rightStr("a=b=c", "="), "b=c");
  EXPECT_EQ(T::rightStr("a=", "="), "");
  EXPECT_EQ(T::leftStr(abcde, "x"), abcde);
  EXPECT_EQ(T::rightStr(abcde, "x"), abcde);
}

TEST(TextFunctions, foldsCaseAsTheCLibraryDoes) {
  const zkstring bytes = allBytes();
  const zkstring lower = T::lower(bytes);
  const zkstring upper = T::upper(bytes);
  for (int i = 0; i < 256; ++i) {
    EXPECT_EQ(static_cast<unsigned char>(lower[static_cast<unsigned int>(i)]), std::tolower(i));
    EXPECT_EQ(static_cast<unsigned char>(upper[static_cast<unsigned int>(i)]), std::toupper(i));
  }
  EXPECT_EQ(T::lower(""), "");
}

TEST(TextFunctions, trimsControlsBlanksAndHighBytes) {
  const zkstring text(" \t\xA0 a b\x7F\x80\n");
  EXPECT_EQ(T::trim(text), "a b\x7F");
  EXPECT_EQ(T::trimLeft(text), "a b\x7F\x80\n");
  EXPECT_EQ(T::trimRight(text), " \t\xA0 a b\x7F");
  EXPECT_EQ(T::trim(" \xFF\n"), "");
  EXPECT_EQ(T::trimLeft(" "), "");
  EXPECT_EQ(T::trimRight(" "), "");
  const Allocations allocations;
  EXPECT_EQ(T::trim(abcde).data(), abcde.data());
  EXPECT_EQ(allocations.count(), 0);
}

TEST(TextFunctions, padsRepeatsAndReverses) {
  EXPECT_EQ(T::lpad(abcde, '*', 7), "**abcde");
  EXPECT_EQ(T::rpad(abcde, '*', 7), "abcde**");
  for (const int n : {INT_MIN, -1, 0}) {
    EXPECT_EQ(T::lpad(abcde, '*', n), "");
    EXPECT_EQ(T::rpad(abcde, '*', n), "");
    EXPECT_EQ(T::repeat(abcde, n), "");
  }
  EXPECT_EQ(T::lpad(abcde, '*', 3), "abc");
  EXPECT_EQ(T::rpad(abcde, '*', 3), "abc");
  EXPECT_EQ(T::lpad("", '*', 2), "**");
  EXPECT_EQ(T::repeat("ab", 3), "ababab");
  EXPECT_EQ(T::repeat("", INT_MAX), "");
  EXPECT_THROW(T::repeat(abcde, INT_MAX), std::bad_alloc);
  EXPECT_EQ(T::reverse(abcde), "edcba");
}

TEST(TextFunctions, replacesWithoutLookingAtWhatItPutIn) {
  struct Row {
    const char* text;
    const char* from;
    const char* to;
    const char* result;
  };
  constexpr Row rows[] = {
      {"aa", "a", "aa", "aaaa"}, {"aaa", "aa", "b", "ba"},     {"abc", "", "x", "abc"},     {"", "a", "b", ""},
      {"abab", "ab", "", ""},    {"xaby", "ab", "ba", "xbay"}, {"abc", "abcd", "x", "abc"},
  };
  for (const Row& row : rows) EXPECT_EQ(T::replace(row.text, row.from, row.to), row.result) << row.text;
  EXPECT_EQ(T::replace("a.b.", zkstring("."), ','), "a,b,");
  EXPECT_EQ(T::replace("a.b.", '.', zkstring("--")), "a--b--");
  EXPECT_EQ(T::replace("a\xFF"
                       "b",
                       '\xFF', '.'),
            "a.b");
  EXPECT_EQ(T::replace(abcde, 'x', 'y').data(), abcde.data());
}

TEST(TextFunctions, findsFromEitherEnd) {
  const zkstring text("abcabc\xFF");
  struct Row {
    int from;
    int first;
    int last;
  };
  constexpr Row rows[] = {{INT_MIN, 1, -1}, {-1, 1, -1}, {0, 1, -1},      {1, 1, 1},
                          {2, 4, 1},        {5, -1, 4},  {INT_MAX, -1, 4}};
  for (const Row& row : rows) {
    EXPECT_EQ(T::findFirst(text, "bc", row.from), row.first) << row.from;
    EXPECT_EQ(T::findFirst(text, 'b', row.from), row.first) << row.from;
    EXPECT_EQ(T::findLast(text, "bc", row.from), row.last) << row.from;
    EXPECT_EQ(T::findLast(text, 'b', row.from), row.last) << row.from;
  }
  EXPECT_EQ(T::findFirst(text, "c"), 2);
  EXPECT_EQ(T::findLast(text, "c"), 5);
  EXPECT_EQ(T::findFirst(text, '\xFF'), 6);
  EXPECT_EQ(T::findLast(text, '\xFF'), 6);
  EXPECT_EQ(T::findLast("", 'x'), -1);
  EXPECT_EQ(T::findLast("a", "abc"), -1);
}

TEST(TextFunctions, startsAndEnds) {
  EXPECT_TRUE(T::startsWith(abcde, "abc"));
  EXPECT_TRUE(T::startsWith(abcde, "abc", -3));
  EXPECT_TRUE(T::startsWith(abcde, "cde", 2));
  EXPECT_FALSE(T::startsWith(abcde, "cdef", 2));
  EXPECT_FALSE(T::startsWith(abcde, "a", INT_MAX));
  EXPECT_TRUE(T::startsWithIgnoreCase(abcde, "ABC"));
  EXPECT_FALSE(T::startsWithIgnoreCase(abcde, "BC"));
  EXPECT_TRUE(T::startsWithIgnoreCase("xABC", "abc", 1));
  EXPECT_TRUE(T::startsWithIgnoreCase(abcde, "AB", INT_MIN));
  EXPECT_TRUE(T::endsWith(abcde, "de"));
  EXPECT_FALSE(T::endsWith(abcde, "cd"));
  EXPECT_TRUE(T::endsWithIgnoreCase(abcde, "DE"));
  EXPECT_FALSE(T::endsWith("e", "de"));
  EXPECT_FALSE(T::endsWith("", "de"));
  for (const char* text : {"", "abc"}) {
    EXPECT_TRUE(T::startsWith(text, ""));
    EXPECT_TRUE(T::startsWithIgnoreCase(text, ""));
    EXPECT_TRUE(T::endsWith(text, ""));
    EXPECT_TRUE(T::endsWithIgnoreCase(text, ""));
  }
}

TEST(TextFunctions, comparesLowerFormsBySignedBytes) {
  const zkstring texts[] = {"", "a", "A", "ab", "aB", "B", "\xC0", "\xE0", "_", "^"};
  for (const zkstring& a : texts) {
    for (const zkstring& b : texts) {
      const int order = T::lower(a).compare(T::lower(b));
      EXPECT_EQ(T::compareIgnoreCase(a, b), order);
      EXPECT_EQ(T::equalIgnoreCase(a, b), order == 0);
      EXPECT_EQ(T::notEqualIgnoreCase(a, b), order != 0);
      EXPECT_EQ(T::less(a, b), a < b);
      EXPECT_EQ(T::lessEqual(a, b), !(a > b));
      EXPECT_EQ(T::greater(a, b), a > b);
      EXPECT_EQ(T::greaterEqual(a, b), !(a < b));
    }
  }
  EXPECT_TRUE(T::equal(abcde, "abcde"));
  EXPECT_TRUE(T::notEqual(abcde, abcde.substr(1)));
}

TEST(TextFunctions, tellsKindsOfBytesInASCII) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    const zkstring text = "" + zkstring(1, c);
    const bool ascii = i < 128;
    EXPECT_EQ(T::isAlpha(c), ascii && std::isalpha(i)) << i;
    EXPECT_EQ(T::isAlphaUpper(c), ascii && std::isupper(i)) << i;
    EXPECT_EQ(T::isAlphaNum(c), ascii && std::isalnum(i)) << i;
    EXPECT_EQ(T::isAlphaUpperNum(c), ascii && (std::isupper(i) || std::isdigit(i))) << i;
    EXPECT_EQ(T::isNum(c), ascii && std::isdigit(i)) << i;
    EXPECT_EQ(T::isNum("1" + text), T::isNum(c));
    EXPECT_EQ(T::isAlpha("a" + text), T::isAlpha(c));
    EXPECT_EQ(T::isAlphaUpper("A" + text), T::isAlphaUpper(c));
    EXPECT_EQ(T::isAlphaNum("a" + text), T::isAlphaNum(c));
    EXPECT_EQ(T::isAlphaUpperNum("A" + text), T::isAlphaUpperNum(c));
  }
  EXPECT_TRUE(T::isNum(""));
  EXPECT_TRUE(T::isAlphaUpper(""));
}

TEST(TextFunctions, splitsIntoViews) {
  struct Row {
    const char* delimiter;
    const char* text;
    int limit;
    const char* parts;
  };
  constexpr Row rows[] = {
      {",", "", 9, "[]"},           {"", "a,b", 9, "[a,b]"},       {",", "a,b,", 9, "[a, b, ]"},
      {",", "a,,b", 9, "[a, , b]"}, {",", ",", 9, "[, ]"},         {",", "a,b", 1, "[a]"},
      {",", "a,", 1, "[a, ]"},      {",", "a,b", 0, "[]"},         {",", "a,b", -1, "[]"},
      {"ab", "aab", 9, "[a, ]"},    {"--", "a---b", 9, "[a, -b]"}, {"abc", "ab", 9, "[ab]"},
      {",", "a,b,", 2, "[a, b, ]"},
  };
  for (const Row& row : rows) EXPECT_EQ(T::split(row.delimiter, row.text, row.limit).toString(), row.parts) << row.text;
  const zkstring text("a,b,c");
  const Allocations allocations;
  const StringList parts = T::split(",", text);
  EXPECT_EQ(allocations.count(), 3);  // the delimiter's text, the list, its vector
  EXPECT_EQ(parts.get(2).data(), text.data() + 4);
}

TEST(TextFunctions, joinsWhatItSplitsAndReplacesLikeTheStandardString) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    const auto randomText = [&](unsigned int longest) {
      std::string text(random() % (longest + 1), 'a');
      for (char& c : text) c = "ab,"[random() % 3];
      return text;
    };
    const std::string text = randomText(20);
    const std::string from = randomText(2) + "b";
    const std::string to = randomText(3);
    std::string expected = text;
    for (std::size_t at = 0; (at = expected.find(from, at)) != std::string::npos; at += to.size()) {
      expected.replace(at, from.size(), to);
    }
    const zkstring mine(text.data(), static_cast<unsigned int>(text.size()));
    EXPECT_EQ(standard(T::replace(mine, from.c_str(), to.c_str())), expected) << text << ' ' << from << ' ' << to;
    zkstringbuffer joined;
    const StringList parts = T::split(from.c_str(), mine);
    for (int i = 0; i < parts.size(); ++i) T::append(i > 0 ? T::append(joined, from.c_str()) : joined, parts.get(i));
    EXPECT_EQ(standard(joined), text);
  }
}

TEST(ConcatFunctions, appendsEachTypeOfValue) {
  zkstringbuffer buffer = T::createStringBuffer(100);
  zkstringbuffer part("part");
  T::append(T::append(T::append(buffer, zkstring("s")), part), 'c');
  EXPECT_EQ(&T::append(buffer, -5), &buffer);
  T::append(T::append(T::append(T::append(buffer, __int64{1} << 40), 0.5F), 1e300 > 1), 0.25);
  T::append(T::append(T::append(buffer, BigDecimal("1.5")), BigInteger("7")), Binary("b", 1));
  T::append(T::append(buffer, DateTime(2024, 2, 29, 1, 2, 3, 4)), ISODateTime(DateTime(2024, 3, 1, 0, 0, 0, 0)));
  EXPECT_EQ(buffer, "spartc-510995116277760.5true0.251.57bFeb 29, 2024Mar 01, 2024");
  EXPECT_EQ(ConcatFunctionsHelper::lengthOf("chars") + ConcatFunctionsHelper::lengthOf(Binary("b", 1)), 6);
}

}  // namespace
}  // namespace zarvik
