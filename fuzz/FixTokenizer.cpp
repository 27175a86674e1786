// Foreign bytes as a FIX message: the tokenizer against a walk by the rule, the header, and a parser as generated code
// has it, with data fields and a pair pushed back.
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Exceptions.h"
#include "fix/FIXHeader.h"
#include "fix/FIXInputParser.h"
#include "fix/FIXTokenizer.h"

using namespace zarvik;

namespace {

void check(bool holds) {
  if (!holds) std::abort();
}

bool same(const zkstring& a, const std::string& b) { return std::string(a.data(), a.length()) == b; }

/// Whether the tag is a number that both sides read alike; false for one that is an error, or out of range.
bool isPlain(const std::string& tag, int& number) {
  const std::from_chars_result read = std::from_chars(tag.data(), tag.data() + tag.size(), number);
  return read.ec == std::errc() && read.ptr == tag.data() + tag.size();
}

void walk(const std::string& text, char delimiter) {
  FIXTokenizer tokenizer(zkstring(text.data(), static_cast<unsigned int>(text.size())), delimiter);
  FIXTokenizer::TagValuePair pair;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(delimiter, begin), text.size());
    const std::string token = text.substr(begin, end - begin);
    const std::size_t equal = token.find('=');
    begin = end + 1;
    int tag = 0;
    const bool isGood = equal != std::string::npos && isPlain(token.substr(0, equal), tag);
    try {
      check(tokenizer.next(pair));
      if (isGood) check(pair.getTag() == tag);
      check(equal != std::string::npos && same(pair.getValue(), token.substr(equal + 1)));
    } catch (const TransformException&) {
      check(!isGood);
    }
    check(tokenizer.getCurrentIndex() == static_cast<int>(begin));
  }
  check(!tokenizer.next(pair));
  tokenizer.assertEmpty();
}

void readHeader(const std::string& text) {
  FIXHeader header;
  try {
    header.parseHeader(text.data(), static_cast<int>(text.size()));
  } catch (const FIXParsingException& error) {
    check(same(error.getMessage().substr(0, 5), "[col "));
  }
  header.toXMLString();
}

/// Takes fields into a header as generated code would; stops at the first tag that it does not know.
class Parser : public FIXInputParser {
 public:
  using InputParser::parse;
  void parse(ExternalObject* /*object*/, const Binary& /*bytes*/, TransformContext& /*context*/) override {}
  ExternalObject* parse(const Binary& /*bytes*/, TransformContext& /*context*/) override { return nullptr; }

  void parse(FIXHeader& header, FIXTokenizer& tokenizer) {
    int dataLength = 0;
    for (FIXTokenizer::TagValuePair pair; takeField(header, tokenizer, pair, dataLength);) {
    }
    assertNotNull(&header, FIXHeader::MSG_TYPE, 35);
    tokenizer.assertEmpty();
  }

 private:
  bool takeField(FIXHeader& header, FIXTokenizer& tokenizer, FIXTokenizer::TagValuePair& pair, int& dataLength) {
    const bool isData = dataLength != 0;
    if (!(isData ? tokenizer.nextDataTag(pair, dataLength) : tokenizer.next(pair))) return false;
    if (isData) check(pair.getValue().length() == static_cast<unsigned int>(dataLength));
    dataLength = 0;
    switch (pair.getTag()) {
      case 35:
        assertTagNew(&header, FIXHeader::MSG_TYPE, 35);
        ensureNotNull(pair.getValue(), &header, FIXHeader::MSG_TYPE);
        header.setMsgType(pair.getValue());
        return true;
      case 95:
        dataLength = pair.toInt();
        return true;
      case 96:
        missingTag(pair.getValue(), 96);
        return true;
      default:
        tokenizer.pushBack(pair);
        return false;
    }
  }
};
}  // namespace

/// The first byte is the delimiter of the walk; the others are the message, with '|' for the byte 1.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  std::string text(reinterpret_cast<const char*>(bytes + 1), size - 1);
  walk(text, static_cast<char>(bytes[0]));
  for (char& c : text) c = c == '|' ? '\x01' : c;
  walk(text, '\x01');
  readHeader(text);
  FIXHeader header;
  FIXTokenizer tokenizer(zkstring(text.data(), static_cast<unsigned int>(text.size())), '\x01');
  try {
    Parser().parse(header, tokenizer);
  } catch (const TransformException&) {
  }
  return 0;
}
