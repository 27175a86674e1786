#include "Binary.h"

#include "Support.h"

namespace zarvik {
namespace {

TEST(Binary, encodesTheVectorsOfRfc4648) {
  constexpr const char* rows[][3] = {
      {"", "", ""},
      {"f", "Zg==", "66"},
      {"fo", "Zm8=", "666F"},
      {"foo", "Zm9v", "666F6F"},
      {"foob", "Zm9vYg==", "666F6F62"},
      {"fooba", "Zm9vYmE=", "666F6F6261"},
      {"foobar", "Zm9vYmFy", "666F6F626172"},
  };
  for (const auto& [text, base64, hex] : rows) {
    const Binary bytes{zkstring(text)};
    EXPECT_EQ(bytes.toBase64String(), base64);
    EXPECT_EQ(bytes.toHexString(), hex);
    EXPECT_EQ(Binary::fromBase64String(base64).toString(), text);
    EXPECT_EQ(Binary::fromHexString(hex).toString(), text);
  }
}

TEST(Binary, readsBackAllBytes) {
  std::mt19937 random(1);
  for (unsigned int n = 0; n < 300; ++n) {
    const Binary bytes(n);
    for (unsigned int i = 0; i < n; ++i) bytes.set(i, static_cast<char>(random()));
    EXPECT_EQ(Binary::fromBase64String(bytes.toBase64String()), bytes);
    EXPECT_EQ(Binary::fromHexString(bytes.toHexString()), bytes);
  }
}

TEST(Binary, decodesBase64Laxly) {
  constexpr const char* rows[][3] = {
      {"line breaks", "Zm9v\r\nYm\nFy", "666F6F626172"},
      {"bytes above 127",
       "\xff\x80Zm\xc3\x84"
       "9v",
       "666F6F"},
      {"no padding: the last group counts but gives nothing", "Zm9vYmE", "666F6F0000"},
      {"one character too many", "Zm9vY", "666F6F"},
      {"half a padding", "Zm9vYg=", "666F6F00"},
      {"half a padding and a character", "Zm9vYg=A", "666F6F62"},
      {"nothing is written behind the length", "Zm8=Zm9vZm9v", "666F"},
      {"padding first", "=Zm9vZm9v", ""},
      {"padding second", "Z=m9vZm9v", ""},
      {"padding only", "====", ""},
  };
  for (const auto& [name, text, hex] : rows) EXPECT_EQ(Binary::fromBase64String(text).toHexString(), hex) << name;
}

TEST(Binary, decodesHexWithoutFailure) {
  constexpr const char* rows[][3] = {
      {"either case", "aBcDeF0f", "ABCDEF0F"},
      {"the whole pairs of an odd length", "ABC", "AB"},
      {"one digit", "A", ""},
      {"G counts 16 and z counts 35", "0G0z", "1023"},
      {"a blank counts 32 - 55", " 0", "90"},
      {"0x80 counts 73", "0\x80", "49"},
  };
  for (const auto& [name, text, hex] : rows) EXPECT_EQ(Binary::fromHexString(text).toHexString(), hex) << name;
}

TEST(Binary, sharesBlocksWithStrings) {
  const zkstring text("abcdef");
  const Allocations allocations;
  const Binary whole(text);
  const Binary view(text.substr(2, 3));
  const Binary constant("abcdef", 6, true);
  EXPECT_EQ(view.toString().data(), text.data() + 2);
  EXPECT_EQ(constant, whole);
  EXPECT_EQ(allocations.count(), 0);
  view.set(0, 'X');  // seen by all who share the block
  EXPECT_EQ(whole.toASCIIString(), "abXdef");
  EXPECT_EQ(whole.sub(1, 3).toString(), "bXd");
  EXPECT_NE(whole.sub(1, 3).data(), whole.data() + 1);
}

TEST(Binary, hasSignedBytesAndNoOrder) {
  const Binary low(2, '\x01');
  const Binary high(2, '\xff');
  EXPECT_EQ(high.at(1), -1);
  EXPECT_FALSE(low < high || high < low || low == high);
}
}  // namespace
}  // namespace zarvik
