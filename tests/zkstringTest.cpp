#include "zkstring.h"

#include <map>
#include <string_view>

#include "Support.h"

namespace zarvik {
namespace {

constexpr unsigned int notFound = ~0U;

/// Opens what only derived classes see.
struct Probe : zkstring {
  using zkstring::operator=;
  Probe(const zkstring& text) : zkstring(text) {}
  int holders() const { return array != nullptr ? array->getRefCount() : 0; }
  unsigned int room() const { return capacity(); }
};

std::string_view view(const zkstring& text) { return {text.data(), text.length()}; }

TEST(zkstring, hasOnlyOneEmptyText) {
  const zkstring copied("");
  const zkstring ofNull(static_cast<const char*>(nullptr));
  const zkstring empties[] = {zkstring(), copied, ofNull, zkstring::EMPTY, zkstringliteral("")};
  for (const zkstring& empty : empties) {
    EXPECT_TRUE(empty.empty());
    EXPECT_EQ(empty, zkstring::EMPTY);
    EXPECT_STREQ(empty.c_str(), "");
  }
  EXPECT_EQ(Probe(zkstring()).room(), 0U);
  EXPECT_EQ(Probe(copied).room(), 1U);
  EXPECT_EQ(Probe(ofNull).room(), 1U);
}

TEST(zkstring, copiesAndSlicesWithoutAllocation) {
  const zkstring text("abcdefgh");
  const zkstringliteral literal("a constant text");
  const Allocations allocations;
  const zkstring copy(text);
  const zkstring slice = copy.substr(2, 3);
  const zkstring constant = literal.substr(2);
  zkstring out;
  slice.substr(1, out);
  EXPECT_EQ(allocations.count(), 0);
  EXPECT_EQ(slice, "cde");
  EXPECT_EQ(out, "de");
  EXPECT_EQ(out.data(), text.data() + 3);
  EXPECT_EQ(Probe(out).holders(), 5);
  EXPECT_EQ(constant, "constant text");
}

TEST(zkstring, terminatesSlicesInABlockOfTheirOwn) {
  const zkstring text("abcdef");
  const Probe slice(text.substr(2, 3));
  const Probe whole(text);
  EXPECT_EQ(slice.holders(), 3);
  EXPECT_STREQ(slice.c_str(), "cde");
  EXPECT_EQ(slice.room(), 4U);
  EXPECT_EQ(whole.holders(), 2);
  EXPECT_EQ(text, "abcdef");

  const Allocations allocations;
  const char* const terminated = whole.c_str();  // reaches the reserved byte: in place, though shared
  EXPECT_EQ(terminated, text.data());
  EXPECT_EQ(slice.c_str(), slice.data());
  EXPECT_EQ(allocations.count(), 0);

  const zkstring sum = text + "ghi";
  EXPECT_EQ(sum.c_str(), sum.data());
  EXPECT_STREQ(zkstringliteral("constant").substr(0, 3).c_str(), "constant");  // constant text keeps its own end
}

TEST(zkstring, comparesBytesAsSigned) {
  const std::tuple<zkstring, zkstring, int> rows[] = {
      {"a", "ab", -1},
      {"ab", "a", 1},
      {"", "", 0},
      {"\x80", "a", -128 - 'a'},
      {"abcdefgh\xff", "abcdefgh\x01", -2},
      {"0123456789abcdefX", "0123456789abcdeeX", 1},
      {zkstring("a\0b", 3), zkstring("a\0c", 3), -1},
  };
  for (const auto& [a, b, result] : rows) {
    EXPECT_EQ(a.compare(b), result) << a.c_str() << " " << b.c_str();
    EXPECT_EQ(a < b, result < 0);
    EXPECT_EQ(a > b, result > 0);
    EXPECT_EQ(a == b, result == 0);
  }
  EXPECT_NE(zkstring("abcd\0efgh", 9), "abcd");
  EXPECT_TRUE("abc" == zkstring("abc"));
  // Sorted containers rest on the order.
  const std::map<zkstring, int> order = {{"b", 2}, {"a", 1}, {"\xe9", 0}};
  EXPECT_EQ(order.begin()->second, 0);
}

TEST(zkstring, searchesByTheRulesAtTheEdges) {
  const zkstring empty, abc("abc"), bytes("\x7f\x80\xff\x80");
  EXPECT_EQ(empty.find("", 0), 0U);
  EXPECT_EQ(empty.find("", 1), notFound);
  EXPECT_EQ(abc.find("", 2), 2U);
  EXPECT_EQ(abc.find("", 3), notFound);
  EXPECT_EQ(bytes.find(0x80), notFound);  // never equal to the sign-extended byte
  EXPECT_EQ(bytes.find(-128), 1U);
  EXPECT_EQ(abc.rfind("", 99), 3U);
  EXPECT_EQ(empty.rfind('a'), notFound);
  EXPECT_EQ(bytes.rfind('\x80', 2), 1U);
  EXPECT_EQ(bytes.rfind('\x80'), 3U);
}

TEST(zkstring, findsWhatTheStandardLibraryFinds) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> letter('a', 'c');
  for (int round = 0; round < 20000; ++round) {
    std::string text(random() % 70, ' ');
    for (char& c : text) c = static_cast<char>(letter(random));
    std::string pattern(1 + random() % 5, ' ');
    for (char& c : pattern) c = static_cast<char>(letter(random));
    const zkstring ours(text.data(), static_cast<unsigned int>(text.size()));
    const zkstring wanted(pattern.data(), static_cast<unsigned int>(pattern.size()));
    const auto pos = static_cast<unsigned int>(random() % 75);
    ASSERT_EQ(ours.find(wanted, pos), static_cast<unsigned int>(text.find(pattern, pos))) << text << ' ' << pattern;
    ASSERT_EQ(ours.rfind(wanted, pos), static_cast<unsigned int>(text.rfind(pattern, pos))) << text << ' ' << pattern;
    ASSERT_EQ(ours.find(pattern[0], pos), static_cast<unsigned int>(text.find(pattern[0], pos)));
    ASSERT_EQ(ours.rfind(pattern[0], pos), static_cast<unsigned int>(text.rfind(pattern[0], pos)));
    const std::string other = text.substr(0, pos) + pattern;
    const zkstring close(other.data(), static_cast<unsigned int>(other.size()));
    ASSERT_EQ(ours.compare(close) < 0, text < other) << text << ' ' << other;
    ASSERT_EQ(ours == wanted, text == pattern);
  }
}

TEST(zkstring, assignsFromItsOwnBlock) {
  zkstring text("abcdef");
  text.assign(text.data() + 2, 3);
  EXPECT_EQ(text, "cde");
  text = text.c_str() + 1;
  EXPECT_EQ(text, "de");
  text.substr(1, text);
  EXPECT_EQ(text, "e");
  const zkstring& self = text;
  text = self;
  EXPECT_EQ(text, "e");
  EXPECT_EQ(Probe(text).holders(), 2);
}

TEST(zkstring, leavesAMovedFromStringEmptyAndUsable) {
  zkstring from("abc");
  const Allocations allocations;
  zkstring to(std::move(from));
  EXPECT_TRUE(from.empty());
  from = std::move(to);
  EXPECT_EQ(from, "abc");
  EXPECT_EQ(Probe(from).holders(), 2);
  EXPECT_EQ(allocations.count(), 0);
}

TEST(zkstring, writesNumbersIntoItsOwnBlockUnlessItIsShared) {
  zkstring text("a text that is long enough for any int");
  const char* const block = text.data();
  EXPECT_EQ(text.assign(5), "5");
  EXPECT_EQ(text.data(), block);

  const zkstring other(text);
  EXPECT_EQ(text.assign(-12), "-12");
  EXPECT_EQ(other, "5");
  EXPECT_EQ(Probe(text).room(), 26U);
  EXPECT_EQ(text.assign('x'), "x");
  EXPECT_EQ(text.assign(0.5F), "0.5");
  EXPECT_EQ(Probe(text).room(), 101U);
  EXPECT_EQ(text.assign(__int64{1} << 62), "4611686018427387904");
  EXPECT_EQ(text.assign(-1e300).length(), std::string_view("-.0").length() + 301);  // beyond the usual room
}

TEST(zkstring, joinsViewsOfOneText) {
  const zkstring text("one two three");
  const zkstring one = text.substr(0, 3), three = text.substr(8);
  EXPECT_EQ(one.span(three), text);
  EXPECT_EQ(one.distance(three), 8U);
  EXPECT_EQ(view(three.span(one)), "");
  EXPECT_EQ('<' + one + '>' + zkstring("!"), "<one>!");
}

TEST(zkstring, refusesToDeleteABlockThatIsHeld) {
  chararray* const block = chararray::create(4);
  EXPECT_EQ(errorOf<TransformException>([&] { delete block; }), "Ref count error. Illegal delete on zkstring object");
}

}  // namespace
}  // namespace zarvik
