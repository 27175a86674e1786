#include "fix/FIXTokenizer.h"

#include <charconv>

#include "../../cpp/ByteScan.h"
#include "Support.h"
#include "fix/FIXText.h"

namespace zarvik {
namespace {

using Pair = FIXTokenizer::TagValuePair;

const std::string noEqualSign = "'Name or value' can't be empty. Unable to parse tag=value of form ";

/// What a tokenizer gives, one entry a field, with the position behind it; errors are entries too.
std::string tokensOf(const zkstring& text, char delimiter) {
  FIXTokenizer tokenizer(text, delimiter);
  std::string log;
  for (Pair pair;;) {
    try {
      if (!tokenizer.next(pair)) return log;
      log += std::to_string(pair.getTag()) + ":" + str(pair.getValue());
    } catch (const FIXParsingException& error) {
      log += "! " + str(error.getMessage());
    } catch (const TransformException& error) {
      log += "? " + str(error.getMessage());
    }
    log += "@" + std::to_string(tokenizer.getCurrentIndex()) + "\n";
  }
}

/// The same by the rule, on the standard library.
std::string expectedTokensOf(const std::string& text, char delimiter) {
  std::string log;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(delimiter, begin), text.size());
    const std::string token = text.substr(begin, end - begin);
    begin = end + 1;
    const std::string tagText = token.substr(0, token.find('='));
    int tag = 0;
    const std::from_chars_result read = std::from_chars(tagText.data(), tagText.data() + tagText.size(), tag);
    if (token.find('=') == std::string::npos) {
      log += "! " + noEqualSign + token;
    } else if (read.ec != std::errc() || read.ptr != tagText.data() + tagText.size()) {
      log += "? Cannot convert '" + tagText + "' to int";
    } else {
      log += std::to_string(tag) + ":" + token.substr(tagText.size() + 1);
    }
    log += "@" + std::to_string(begin) + "\n";
  }
  return log;
}

TEST(FIXTokenizer, cutsFieldsOfAnyFormWhereverTheTextEnds) {
  const char* const rows[] = {
      "35=D|55=X|",
      "35=D||55=X",
      "1=|22==|=x|abc|333=a=b|4x=5|x4=5|-7=minus|0=|007=|1 =|===|",
      "123456789=nine|1234567890=ten|0000000035=zeros|00000000000000000000000000000000000035=long",
      "58=a value of more than sixteen bytes|52=20240614-07:40:42.123|1=exactly 14 bytes|2=exactly fifteen|3=x",
      "58=a value of well over sixty-four bytes, so that it takes more than one step and ends in a longer search |1=x|",
      "no equal sign in all of these thirty-odd bytes|55=X|and none in these either",
      "9999=\x80\xff\n\r|15=\xe2\x82\xac",
  };
  for (const char* const row : rows) {
    const std::string whole = soh(row);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
      const std::string text = whole.substr(0, size);
      for (const char delimiter : {'\x01', '5', '=', 'x', '\x80'}) {
        EXPECT_EQ(tokensOf(zk(text), delimiter), expectedTokensOf(text, delimiter)) << text << " by " << +delimiter;
      }
      const zkstring inside = zk("35=front|" + text + "|36=behind");  // a view that goes on in its block
      EXPECT_EQ(tokensOf(inside.substr(9, static_cast<unsigned int>(size)), '\x01'), expectedTokensOf(text, '\x01'));
    }
  }
  EXPECT_EQ(tokensOf("2147483648=x", '|'), "? Integer overflow. Cannot convert '2147483648' to int@13\n");
}

TEST(FIXTokenizer, readsDataByItsLength) {
  const std::string blob =
      "Blob type tag value pair has incorrect data length, character after the specified length is not the SOH "
      "character";
  const std::string outside = "Unexpected end of input while looking for data";
  const std::tuple<const char*, int, std::string> rows[] = {
      {"96=ab|cd|58=x|", 5, "96:ab|cd@9"},
      {"96=ab|cd|", 2, "96:ab@6"},
      {"96=|58=x|", 0, "96:@4"},
      {"96=ab|cd|", 3, blob + "@3"},
      {"96=ab|cd", 5, outside + "@3"},
      {"96=ab|cd|", 50, outside + "@3"},
      {"96=ab|cd|", 0, blob + "@3"},
      {"96=|", 2147483647, outside + "@3"},
      {"96", 0, outside + "@3"},
      {"x|96=ab|", 2, "Cannot convert 'x|96' to int@8"},
      {"=ab|", 2, "Cannot convert '' to int@4"},
      {"96=ab|", -1, blob + "@3"},
      {"96=ab|", -4, outside + "@3"},
      {"", 0, "end@0"},
  };
  for (const auto& [text, length, expected] : rows) {
    FIXTokenizer tokenizer(zk(soh(text)), '\x01');
    Pair pair;
    std::string result = "end";
    try {
      if (tokenizer.nextDataTag(pair, length)) result = std::to_string(pair.getTag()) + ":" + str(pair.getValue());
    } catch (const TransformException& error) {
      result = str(error.getMessage());
    }
    EXPECT_EQ(result + "@" + std::to_string(tokenizer.getCurrentIndex()), soh(expected)) << text << " by " << length;
  }
  FIXTokenizer tokenizer("95=1|96=|", '|');
  Pair pair;
  tokenizer.next(pair);
  EXPECT_EQ(errorOf<FIXParsingException>([&] { tokenizer.nextDataTag(pair, -4); }), blob);  // the delimiter before it
}

TEST(FIXTokenizer, givesAPairBackAndKnowsItsPlace) {
  const zkstring text("453=2|448=party of more than sixteen bytes|55=X|");
  FIXTokenizer tokenizer(text, '|');
  Pair first;
  Pair second;
  tokenizer.next(first);
  tokenizer.next(second);
  tokenizer.pushBack(first);
  tokenizer.pushBack(second);
  EXPECT_EQ(tokenizer.getNextTokenIndex(), 10 - 3);
  EXPECT_EQ(tokenizer.getTokenIndex(first), 4 - 3);
  EXPECT_EQ(errorOf<FIXParsingException>([&] { tokenizer.nextDataTag(second, 1); }),
            "Length based tag not supported here");
  FIXTokenizer copy(tokenizer);
  FIXTokenizer moved(std::move(copy));  // goes on as before
  for (FIXTokenizer* const each : {&tokenizer, &copy, &moved}) {
    Pair again;
    ASSERT_TRUE(each->next(again));
    EXPECT_EQ(str(again.toString()), "party of more than sixteen bytes");
    EXPECT_EQ(each->getNextTokenIndex(), 43);
    EXPECT_EQ(errorOf<FIXParsingException>([&] { each->assertEmpty(); }), "Unexpected tag 55");
    ASSERT_TRUE(each->next(again));
    EXPECT_EQ(str(again.getValue()), "X");
    EXPECT_FALSE(each->next(again));
    each->assertEmpty();
  }
}

TEST(FIXTokenizer, takesViewsWithoutAllocating) {
  Pair kept;
  {
    const zkstring text = zk(soh("35=D|52=20240614-07:40:42.123|1234567890=x|11=ORD-1|38=100"));
    const Allocations allocations;
    FIXTokenizer tokenizer(text, '\x01');
    Pair pair;
    int fields = 0;
    while (tokenizer.next(pair)) ++fields;
    kept = pair;
    EXPECT_EQ(fields, 5);
    EXPECT_EQ(allocations.count(), 0);
  }
  EXPECT_EQ(kept.toInt(), 100);
}

/// Both ways of scanning, against one byte after the other.
TEST(ByteScan, agreesWithAByteWiseLoop) {
  std::mt19937 random(7);
  std::string text(400, '\0');
  for (char& c : text) c = static_cast<char>(random() % 4 == 0 ? 0x7f + random() % 3 : random());
  for (std::size_t i = 0; i + windowSize <= text.size(); ++i) {
    unsigned int expected = 0;
    const std::string wanted(windowSize, text[random() % text.size()]);
    for (unsigned int k = 0; k < windowSize; ++k) expected |= (text[i + k] == wanted[0] ? 1U : 0U) << k;
    EXPECT_EQ(words::places(&text[i], wanted.data()), expected);
    EXPECT_EQ(scan::places(&text[i], wanted.data()), expected);
  }
  unsigned int sum = 0;
  for (std::size_t size = 0; size <= text.size(); ++size) {
    EXPECT_EQ(words::sum(text.data(), size), sum % 256);
    EXPECT_EQ(scan::sum(text.data(), size), sum % 256);
    if (size < text.size()) sum += static_cast<unsigned char>(text[size]);
  }
}

}  // namespace
}  // namespace zarvik
