#include "fix/FIXHeaderParser.h"

#include <algorithm>
#include <iterator>

#include "Conversion.h"
#include "Exceptions.h"
#include "ThrowFrom.h"
#include "fix/FIXHeader.h"
#include "fix/FIXTokenizer.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXHeaderParser";
constexpr char delimiter = '\x01';

enum Tag : int {
  BEGIN_STRING = 8,
  BODY_LENGTH = 9,
  MSG_SEQ_NUM = 34,
  MSG_TYPE = 35,
  SENDER_COMP_ID = 49,
  SENDER_SUB_ID = 50,
  TARGET_COMP_ID = 56,
  TARGET_SUB_ID = 57,
  ON_BEHALF_OF_COMP_ID = 115,
  DELIVER_TO_COMP_ID = 128
};

/// Tags of the header that no field is filled from.
constexpr int steppedOver[] = {43, 52, 90, 91, 97, 116, 122, 129, 142, 143, 144, 145, 212, 213, 347, 369, 370};
static_assert(std::is_sorted(std::begin(steppedOver), std::end(steppedOver)));  // isSteppedOver searches it

bool isSteppedOver(int tag) { return std::binary_search(std::begin(steppedOver), std::end(steppedOver), tag); }

/// Stores the field; false if its tag is not of the header.
bool store(FIXHeader& header, const FIXTokenizer::TagValuePair& pair) {
  switch (pair.getTag()) {
    case BEGIN_STRING:
      return header.setBeginString(pair.getValue()), true;
    case BODY_LENGTH:
      return header.setBodyLength(pair.toInt()), true;
    case MSG_SEQ_NUM:
      return header.setMsgSeqNum(pair.toInt()), true;
    case MSG_TYPE:
      return header.setMsgType(pair.getValue()), true;
    case SENDER_COMP_ID:
      return header.setSenderCompID(pair.getValue()), true;
    case SENDER_SUB_ID:
      return header.setSenderSubID(pair.getValue()), true;
    case TARGET_COMP_ID:
      return header.setTargetCompID(pair.getValue()), true;
    case TARGET_SUB_ID:
      return header.setTargetSubID(pair.getValue()), true;
    case ON_BEHALF_OF_COMP_ID:
      return header.setOnBehalfOfCompID(pair.getValue()), true;
    case DELIVER_TO_COMP_ID:
      return header.setDeliverToCompID(pair.getValue()), true;
    default:
      return isSteppedOver(pair.getTag());
  }
}
}  // namespace

void FIXHeaderParser::parseHeader(FIXHeader& header, const char* text, int length) {
  FIXTokenizer tokenizer(zkstring(text, static_cast<unsigned int>(std::max(length, 0))), delimiter);
  try {
    parseHeader(&header, tokenizer);
  } catch (const TransformException& error) {
    throwFrom(here,
              FIXParsingException("[col " + intToString(tokenizer.getNextTokenIndex()) + "] " + error.getMessage()));
  }
}

void FIXHeaderParser::parseHeader(FIXHeader* header, FIXTokenizer& tokenizer) {
  FIXTokenizer::TagValuePair pair;
  while (tokenizer.next(pair)) {
    if (store(*header, pair)) continue;
    tokenizer.pushBack(pair);  // the body begins
    return;
  }
}

}  // namespace zarvik
