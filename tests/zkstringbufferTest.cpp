#include "zkstringbuffer.h"

#include <random>

#include "Support.h"

namespace zarvik {
namespace {

/// Opens what only derived classes see.
struct Probe : zkstringbuffer {
  using zkstringbuffer::operator=;
  using zkstringbuffer::zkstringbuffer;
  unsigned int room() const { return capacity(); }
};

TEST(zkstringbuffer, growsByItsRule) {
  Probe buffer;
  buffer.append('x');
  EXPECT_EQ(buffer.room(), 9U);
  buffer.reserve(100);  // the shortfall on top of the length, no more
  EXPECT_EQ(buffer.room(), 100U);
  buffer.append(99, 'y');
  EXPECT_EQ(buffer.room(), 201U);
  EXPECT_EQ(buffer.length(), 100U);
  EXPECT_EQ(buffer.append(-1, 'z').append(0, 'z').length(), 100U);
  buffer.clear();
  EXPECT_EQ(buffer.room(), 201U);
  Probe none;
  none.append(0, 'z');
  EXPECT_EQ(none.room(), 8U);
}

TEST(zkstringbuffer, editsLikeAString) {
  std::mt19937 random(11);
  for (int round = 0; round < 2000; ++round) {
    std::string expected = "start";
    zkstringbuffer buffer("start");
    for (int step = 0; step < 12; ++step) {
      const auto pos = static_cast<unsigned int>(random() % (expected.size() + 1));
      const auto n = static_cast<unsigned int>(random() % 6);
      const std::string text(random() % 9, static_cast<char>('a' + random() % 26));
      switch (random() % 5) {
        case 0:
          expected += text, buffer.append(text.c_str());
          break;
        case 1:
          expected.insert(pos, text), buffer.insert(pos, text.c_str());
          break;
        case 2:
          expected.erase(pos, n), buffer.erase(pos, n);
          break;
        case 3:
          expected.replace(pos, n, text), buffer.replace(pos, n, text.c_str());
          break;
        default:
          expected += 'x', buffer += 'x';
      }
      ASSERT_EQ(std::string(buffer.data(), buffer.length()), expected);
    }
  }
}

TEST(zkstringbuffer, takesItsOwnTextAsArgument) {
  zkstringbuffer buffer("abc");
  for (int i = 0; i < 5; ++i) buffer.append(buffer);
  EXPECT_EQ(buffer.length(), 96U);
  EXPECT_EQ(buffer.erase(6, 99).insert(1, buffer), "aabcabcbcabc");
  EXPECT_EQ(buffer.replace(0, 3, buffer.data() + 10, 2), "bccabcbcabc");
  const zkstring before(buffer);  // a view that reaches over the end that follows
  EXPECT_EQ(buffer.erase(2, 99).append(before), "bcbccabcbcabc");
}

TEST(zkstringbuffer, sharesItsBlockUntilItGrows) {
  zkstringbuffer buffer("abc");
  const zkstring shared(buffer);
  buffer[0] = 'x';
  EXPECT_EQ(shared, "xbc");  // edits do not look at the count
  buffer.append("defgh");
  buffer[0] = 'y';
  EXPECT_EQ(shared, "xbc");

  const zkstring text("abc");
  zkstringbuffer copied(text);  // a text handed to a constructor is copied
  copied[0] = 'x';
  EXPECT_EQ(text, "abc");
}

TEST(zkstringbuffer, editsViewsAndConstantTexts) {
  zkstringbuffer view;
  view = zkstring("0123456789").substr(4);
  EXPECT_EQ(view.append('x'), "456789x");  // moved to the block's start, which had room
  view = zkstring("0123456789").substr(4, 3);
  EXPECT_EQ(view.erase(1, 1), "46");

  zkstringbuffer constant;
  constant = zkstringliteral("constant");
  constant[0] = 'C';
  EXPECT_EQ(constant, "Constant");
  constant = zkstringliteral("constant");
  EXPECT_EQ(constant.replace(0, 3, "in"), "instant");
}

}  // namespace
}  // namespace zarvik
