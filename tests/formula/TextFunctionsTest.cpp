#include "formula/TextFunctions.h"

#include <cctype>
#include <climits>

#include "Support.h"

namespace zarvik {
namespace {

using T = TextFunctions;

const zkstring abcde("abcde");

TEST(TextFunctions, charAtAloneFails) {
  EXPECT_EQ(T::charAt(abcde, 4), 'e');
  for (const int index : {INT_MIN, -1, 5, INT_MAX}) {
    EXPECT_EQ(errorOf<TransformRuntimeException>([&] { T::charAt(abcde, index); }), "Index out of range of string.");
  }
}

/// Parts and edits against the standard string's, over all positions and counts at the edges.
TEST(TextFunctions, clampsPositionsAndCounts) {
  const std::string text = "abcde";
  constexpr int edges[] = {INT_MIN, -1, 0, 1, 2, 4, 5, 6, INT_MAX};
  for (const int n : edges) {
    const std::size_t count = static_cast<std::size_t>(std::clamp(n, 0, 5));
    const bool inside = n >= 0 && n < 5;
    EXPECT_EQ(T::left(abcde, n), zk(text.substr(0, count)));
    EXPECT_EQ(T::right(abcde, n), zk(text.substr(5 - count)));
    EXPECT_EQ(T::insert(abcde, n, zkstring("--")), zk(std::string(text).insert(count, "--")));
    EXPECT_EQ(T::deleteCharAt(abcde, n), zk(inside ? std::string(text).erase(count, 1) : text));
    EXPECT_EQ(T::replace(abcde, n, 'X'), zk(inside ? std::string(text).replace(count, 1, "X") : text));
    for (const int m : edges) {
      const std::size_t length = static_cast<std::size_t>(std::max(m, 0));
      const bool edits = inside && m >= 0;
      EXPECT_EQ(T::mid(abcde, n, m), zk(text.substr(count, length))) << n << ' ' << m;
      EXPECT_EQ(T::deleteStr(abcde, n, m), zk(edits ? std::string(text).erase(count, length) : text));
      EXPECT_EQ(T::replace(abcde, n, m, "XY"), zk(edits ? std::string(text).replace(count, length, "XY") : text));
    }
  }
  EXPECT_EQ(T::insert(T::insert(T::insert(T::insert("", 3, 'x'), 0, 12), 9, 0.5F), 0, 1.5), "1.512x0.5");
  EXPECT_EQ(T::leftStr("a=b=c", "=") + T::rightStr("a=b=c", "="), "ab=c");
  EXPECT_EQ(T::leftStr(abcde, "x") + T::rightStr(abcde, "x"), "abcdeabcde");
}

TEST(TextFunctions, takesKindsAndCaseOfBytesAsTheCLibraryDoes) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    const zkstring text(1, c);
    const bool upper = i < 128 && std::isupper(i);
    const bool digit = i < 128 && std::isdigit(i);
    const bool letter = i < 128 && std::isalpha(i);
    EXPECT_EQ(T::lower(text)[0], static_cast<char>(std::tolower(i)));
    EXPECT_EQ(T::upper(text)[0], static_cast<char>(std::toupper(i)));
    EXPECT_TRUE(T::isAlpha(c) == letter && T::isAlpha("a" + text) == letter) << i;
    EXPECT_TRUE(T::isAlphaUpper(c) == upper && T::isAlphaUpper("A" + text) == upper) << i;
    EXPECT_TRUE(T::isAlphaNum(c) == (letter || digit) && T::isAlphaNum("a" + text) == (letter || digit)) << i;
    EXPECT_TRUE(T::isAlphaUpperNum(c) == (upper || digit) && T::isAlphaUpperNum("1" + text) == (upper || digit)) << i;
    EXPECT_TRUE(T::isNum(c) == digit && T::isNum("1" + text) == digit) << i;
  }
  EXPECT_TRUE(T::isNum(""));
}

TEST(TextFunctions, trimsControlsBlanksAndHighBytes) {
  const zkstring text(" \t\xA0 ! b\x7F\x80\n");
  EXPECT_EQ(T::trim(text), "! b\x7F");
  EXPECT_EQ(T::trimLeft(text), "! b\x7F\x80\n");
  EXPECT_EQ(T::trimRight(text), " \t\xA0 ! b\x7F");
  EXPECT_EQ(T::trim(abcde).data(), abcde.data());
  for (int i = 0; i < 256; ++i) {  // each byte among eight that go at once
    const std::string inner = static_cast<char>(i) + std::string("x") + static_cast<char>(i);
    const std::string padded = std::string(9, ' ') + inner + std::string(9, '\n');
    EXPECT_EQ(T::trim(zk(padded)), zk(i > 32 && i < 128 ? inner : "x")) << i;
  }
}

TEST(TextFunctions, padsRepeatsAndReverses) {
  EXPECT_EQ(T::lpad(abcde, '*', 7) + T::rpad(abcde, '*', 7), "**abcdeabcde**");
  EXPECT_EQ(T::lpad(abcde, '*', 3) + T::rpad(abcde, '*', 3), "abcabc");
  EXPECT_EQ(T::lpad(abcde, '*', INT_MIN) + T::rpad(abcde, '*', -1) + T::repeat(abcde, INT_MIN), "");
  EXPECT_EQ(T::repeat("ab", 3) + T::repeat("", INT_MAX) + T::reverse(abcde), "abababedcba");
  EXPECT_THROW(T::repeat(abcde, INT_MAX), std::bad_alloc);
}

TEST(TextFunctions, findsFromEitherEnd) {
  const std::string text = "abcabc\xFF";
  for (const int from : {INT_MIN, 0, 1, 2, 5, 7, INT_MAX}) {
    const auto at = static_cast<std::size_t>(std::max(from, 0));
    const int last = from < 0 ? -1 : static_cast<int>(text.rfind("bc", at));
    EXPECT_EQ(T::findFirst(zk(text), "bc", from), static_cast<int>(text.find("bc", at))) << from;
    EXPECT_EQ(T::findFirst(zk(text), 'b', from), static_cast<int>(text.find('b', at))) << from;
    EXPECT_TRUE(T::findLast(zk(text), "bc", from) == last && T::findLast(zk(text), 'b', from) == last) << from;
  }
  EXPECT_EQ(T::findFirst(zk(text), '\xFF'), 6);
  const zkstring almost(70, 'a');  // stands in many places, but for its end
  EXPECT_EQ(T::findLast("x" + almost + "b" + almost + almost, almost + "b"), 1);
  EXPECT_TRUE(T::findLast("", 'x') == -1 && T::findLast("a", "abc") == -1);
}

TEST(TextFunctions, startsAndEnds) {
  EXPECT_TRUE(T::startsWith(abcde, "abc", -3) && T::startsWith("", ""));
  EXPECT_FALSE(T::startsWith(abcde, "cdef", 2) || T::startsWith(abcde, "a", INT_MAX));
  EXPECT_TRUE(T::startsWithIgnoreCase(abcde, "AB", INT_MIN) && T::startsWithIgnoreCase("xABC", "abc", 1));
  EXPECT_TRUE(T::startsWithIgnoreCase("a", "", 9) && !T::startsWithIgnoreCase(abcde, "BC"));
  EXPECT_TRUE(T::endsWith(abcde, "de") && T::endsWith("", "") && !T::endsWith("e", "de"));
  EXPECT_TRUE(T::endsWithIgnoreCase(abcde, "DE") && !T::endsWith(abcde, "DE"));
}

TEST(TextFunctions, comparesLowerFormsBySignedBytes) {
  const zkstring texts[] = {"", "a", "A", "ab", "aB", "B", "\xC0", "\xE0", "_", "^"};
  for (const zkstring& a : texts) {
    for (const zkstring& b : texts) EXPECT_EQ(T::compareIgnoreCase(a, b), T::lower(a).compare(T::lower(b)));
  }
  EXPECT_TRUE(T::less("a", "b") && T::lessEqual("a", "a") && T::greater("b", "a") && T::greaterEqual("a", "a"));
  EXPECT_FALSE(T::less("a", "a") || T::lessEqual("b", "a") || T::greater("a", "a") || T::greaterEqual("a", "b"));
}

TEST(TextFunctions, splitsIntoViews) {
  const auto parts = [](const char* text, int limit) { return T::split(",", text, limit).toString(); };
  EXPECT_EQ(parts("", 9) + parts("a,b,", 9) + parts("a,,b", 9) + parts(",", 9), "[][a, b, ][a, , b][, ]");
  EXPECT_EQ(parts("a,b", 1) + parts("a,", 1) + parts("a,b", 0) + T::split("", "a,b").toString(), "[a][a, ][][a,b]");
  const zkstring text = zkstring("a,b,c") + zkstring(600U, ',');
  const Allocations allocations;
  const StringList views = T::split(zkstringliteral(","), text);
  EXPECT_EQ(allocations.count(), 2);  // the list, its vector
  EXPECT_EQ(views.size(), 603);
  EXPECT_EQ(views.get(2).data(), text.data() + 4);
}

TEST(TextFunctions, joinsWhatItSplitsAndReplacesLikeTheStandardString) {
  std::mt19937 random(1);
  const auto randomText = [&](unsigned int longest) {
    std::string text(random() % (longest + 1), 'a');
    for (char& c : text) c = "aaaaaab,"[random() % 8];
    return text;
  };
  for (int round = 0; round < 2000; ++round) {
    const std::string text = randomText(80);
    const std::string from = randomText(2) + "b";
    const std::string to = randomText(3);
    std::string expected = text;
    for (std::size_t at = 0; (at = expected.find(from, at)) != std::string::npos; at += to.size()) {
      expected.replace(at, from.size(), to);
    }
    ASSERT_EQ(T::replace(zk(text), zk(from), zk(to)), zk(expected)) << text << ' ' << from << ' ' << to;
    zkstringbuffer joined;
    for (const zkstring& part : T::split(zk(from), zk(text))) T::append(T::append(joined, part), from.c_str());
    ASSERT_EQ(joined, zk(text.empty() ? "" : text + from));
  }
  EXPECT_EQ(T::replace(T::replace("a.b.", zkstring("."), ','), ',', zkstring("--")), "a--b--");
  EXPECT_EQ(T::replace("\xFF.", '\xFF', '.'), "..");
}

TEST(ConcatFunctions, appendsEachTypeOfValue) {
  zkstringbuffer buffer = T::createStringBuffer(100);
  zkstringbuffer part("part");
  T::append(T::append(T::append(T::append(buffer, zkstring("s")), part), 'c'), -5);
  T::append(T::append(T::append(T::append(buffer, __int64{1} << 40), 0.5F), true), 0.25);
  T::append(T::append(T::append(buffer, BigDecimal("1.5")), BigInteger("7")), Binary("b", 1));
  T::append(T::append(buffer, DateTime(2024, 2, 29, 1, 2, 3, 4)), ISODateTime(DateTime(2024, 3, 1, 0, 0, 0, 0)));
  EXPECT_EQ(buffer, "spartc-510995116277760.5true0.251.57bFeb 29, 2024Mar 01, 2024");
}

}  // namespace
}  // namespace zarvik
