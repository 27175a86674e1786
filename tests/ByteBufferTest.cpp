#include "ByteBuffer.h"

#include <new>

#include "Support.h"

namespace zarvik {
namespace {

zkstring letters(unsigned int n) { return zkstring(n, 'x'); }

TEST(ByteBuffer, growsToTheLargerOfNeedAndDouble) {
  ByteBuffer buffer;
  EXPECT_EQ(buffer.getCapacity(), 16);
  buffer.append(letters(16));
  EXPECT_EQ(buffer.getCapacity(), 16);
  buffer.append('x');
  EXPECT_EQ(buffer.getCapacity(), 32);
  buffer.append(letters(100));
  EXPECT_EQ(buffer.getCapacity(), 117);
  buffer.ensureFree(1);
  EXPECT_EQ(buffer.getCapacity(), 234);
  buffer.expandCapacity(234);
  EXPECT_EQ(buffer.getCapacity(), 234);
  EXPECT_EQ(buffer.toString(), letters(117));

  ByteBuffer itself(3);
  itself.append(zkstring("abc"));
  itself.append(itself);
  itself.append(itself.str() + 1, 4);
  EXPECT_EQ(itself.toString(), "abcabcbcab");
  itself.chop(3);
  itself.append(itself.str() + 1, 5);  // reaches over the end
  EXPECT_EQ(itself.toString(), "abcbcabc");
}

TEST(ByteBuffer, writesTextForms) {
  ByteBuffer buffer;
  buffer.append(-12);
  buffer.appendDelimiter("|");
  buffer.append(__int64{1} << 62);
  buffer.appendDelimiter(zkstring("||"));
  buffer.append(0.1F);
  buffer.write('|');
  buffer.append(1234.5, ',');
  buffer.append('.');
  buffer.append(2.5F, '.');
  buffer.write(Binary(2, '\0'));
  EXPECT_EQ(buffer.toString(), zkstring("-12|4611686018427387904||0.1|1234,5.2.5\0\0", 41));

  const Allocations allocations;
  buffer.chop(0);
  for (int i = 0; i < 3; ++i) buffer.append(i);
  EXPECT_EQ(allocations.count(), 0);
}

TEST(ByteBuffer, readsToItsEnd) {
  const char bytes[] = {1, -1, 3, 4, 5};
  ByteBuffer four(bytes, 4);
  EXPECT_EQ(errorOf<TransformException>([&] { four.getCursor(4); }), "Out of bounds");
  EXPECT_EQ(four.read(), 1);
  EXPECT_EQ(four.read(), -1);
  EXPECT_EQ(four.available(), 2);
  EXPECT_EQ(four.read() + four.read(), 7);
  EXPECT_FALSE(four.hasMore());
  EXPECT_EQ(errorOf<TransformException>([&] { four.read(); }), "Out of bounds");

  ByteBuffer five(bytes, 5);
  EXPECT_EQ(five.getCursor(4)[3], 4);
  for (const int n : {0, 1, 2}) EXPECT_EQ(five.getCursor(0)[0], 5) << n;
  for (const int n : {-1, 1, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(errorOf<TransformException>([&] { five.getCursor(n); }), "Out of bounds");
  }
  EXPECT_EQ(five.read(), 5);
}

TEST(ByteBuffer, aViewCopiesBeforeItWrites) {
  char bytes[] = "abcdef";
  ByteBuffer view(bytes, 3);
  EXPECT_EQ(view.str(), bytes);
  EXPECT_EQ(view.getCapacity(), 0);
  view.append('X');
  EXPECT_EQ(view.toString(), "abcX");
  ByteBuffer shortened(bytes, 5);
  shortened.chop(1);
  shortened.expandCapacity(1);
  shortened.append(zkstring("YZ"));
  EXPECT_EQ(shortened.toString(), "aYZ");
  EXPECT_STREQ(bytes, "abcdef");
}

TEST(ByteBuffer, refusesSizesThatAreNone) {
  constexpr int largest = std::numeric_limits<int>::max();
  ByteBuffer buffer;
  buffer.append(zkstring("abc"));
  EXPECT_THROW(buffer.ensureFree(largest), std::bad_array_new_length);
  EXPECT_THROW(buffer.append(buffer.str(), largest), std::bad_array_new_length);
  EXPECT_THROW(buffer.append(buffer.str(), -1), std::bad_array_new_length);
  EXPECT_THROW(ByteBuffer(-1), std::bad_array_new_length);
  EXPECT_EQ(buffer.toString(), "abc");
}

TEST(MathUtil, roundsHalvesUpwards) {
  EXPECT_EQ(MathUtil::round(-0.5), 0.0);
  EXPECT_EQ(MathUtil::round(2.5), 3.0);
}
}  // namespace
}  // namespace zarvik
