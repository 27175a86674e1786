#include "zkstringbuffer.h"

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

/// Against std::string; what is put in is foreign, or a view of the buffer that was taken before the last edit.
TEST(zkstringbuffer, editsLikeAString) {
  std::mt19937 random(11);
  const zkstring letters("abcdefghijklmnop");
  for (int round = 0; round < 4000; ++round) {
    zkstringbuffer buffer("start");
    if (round % 2 == 0) buffer = zkstring("a start in the middle").substr(2, 5);
    zkstring own = buffer;
    for (int step = 0; step < 12; ++step) {
      std::string expected(buffer.data(), buffer.length());
      const auto pos = static_cast<unsigned int>(random() % (expected.size() + 1));
      const auto n = static_cast<unsigned int>(random() % 6);
      const zkstring text = random() % 2 == 0 ? own : letters.substr(n, static_cast<unsigned int>(random() % 9));
      own = buffer.substr(pos);
      const std::string piece(text.data(), text.length());
      switch (random() % 5) {
        case 0:
          expected += piece, buffer.append(text);
          break;
        case 1:
          expected.insert(pos, piece), buffer.insert(pos, text);
          break;
        case 2:
          expected.erase(pos, n), buffer.erase(pos, n);
          break;
        case 3:
          expected.replace(pos, n, piece), buffer.replace(pos, n, text);
          break;
        default:
          expected += 'x', buffer += 'x';
      }
      ASSERT_EQ(std::string(buffer.data(), buffer.length()), expected);
    }
  }
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
