#include "orders/fix/MessageParser.h"

#include <charconv>
#include <cmath>
#include <memory>

#include "Parsing.h"
#include "Stamped.h"
#include "ThrowFrom.h"
#include "fix/FIXType.h"

using namespace zarvik;

namespace orders {
namespace {

constexpr char here[] = "examples/orders/fix/MessageParser";
constexpr char SOH = 1;

/// Whether all of `text` is one number that fits: the engine's readers take a lone sign for 0, read on behind signs
/// amid the digits, and wrap around.
template <class T, class... Format>
bool readWhole(const zkstring& text, T& number, Format... format) {
  const char* const end = text.data() + text.length();
  const auto [behind, error] = std::from_chars(text.data(), end, number, format...);
  return error == std::errc() && behind == end;
}
}  // namespace

ExternalObject* newMessage(DataObject* body) {
  const SmartPtr<DataObject> data(body);
  const SmartPtr<DataObject> header(new FIXHeader);
  const SmartPtr<DataObject> trailer(new FIXTrailer);
  return new ExternalObject(header.get(), data.get(), trailer.get());
}

void MessageParser::parse(ExternalObject* message, const Binary& bytes, TransformContext& /*context*/) {
  FIXTokenizer tokenizer(bytes.toASCIIString(), SOH);
  stamped([&](TransformException& error) { error.setColumn(tokenizer.getNextTokenIndex()); },
          [&] {
            parseHeader(static_cast<FIXHeader&>(*message->getHeader()), tokenizer);
            checkHeader(static_cast<FIXHeader&>(*message->getHeader()));
            parseBody(*message->getData(), tokenizer);
            checkBody(*message->getData());
            parseTrailer(static_cast<FIXTrailer&>(*message->getTrailer()), tokenizer);
            tokenizer.assertEmpty();
          });
}

ExternalObject* MessageParser::parse(const Binary& bytes, TransformContext& context) {
  std::unique_ptr<ExternalObject> message(newMessage(createBody()));
  parse(message.get(), bytes, context);
  return message.release();
}

void MessageParser::parseHeader(FIXHeader& header, FIXTokenizer& tokenizer) {
  Field field;
  while (tokenizer.next(field)) {
    switch (field.getTag()) {
      case 8:
        header.setBeginString(text(header, FIXHeader::BEGIN_STRING, field));
        break;
      case 9:
        header.setBodyLength(integer(header, FIXHeader::BODY_LENGTH, field));
        break;
      case 35:
        header.setMsgType(text(header, FIXHeader::MSG_TYPE, field));
        break;
      case 49:
        header.setSenderCompID(text(header, FIXHeader::SENDER_COMP_ID, field));
        break;
      case 56:
        header.setTargetCompID(text(header, FIXHeader::TARGET_COMP_ID, field));
        break;
      case 115:
        header.setOnBehalfOfCompID(text(header, FIXHeader::ON_BEHALF_OF_COMP_ID, field));
        break;
      case 128:
        header.setDeliverToCompID(text(header, FIXHeader::DELIVER_TO_COMP_ID, field));
        break;
      case 34:
        header.setMsgSeqNum(integer(header, FIXHeader::MSG_SEQ_NUM, field));
        break;
      case 50:
        header.setSenderSubID(text(header, FIXHeader::SENDER_SUB_ID, field));
        break;
      case 57:
        header.setTargetSubID(text(header, FIXHeader::TARGET_SUB_ID, field));
        break;
      case 52:
        header.setSendingTime(text(header, FIXHeader::SENDING_TIME, field));
        break;
      case 43:   // PossDupFlag
      case 97:   // PossResend
      case 122:  // OrigSendingTime
        break;
      default:
        return tokenizer.pushBack(field);  // the body begins
    }
  }
}

void MessageParser::checkHeader(FIXHeader& header) {
  assertNotNull(&header, FIXHeader::BEGIN_STRING, 8);
  assertNotNull(&header, FIXHeader::BODY_LENGTH, 9);
  assertNotNull(&header, FIXHeader::MSG_TYPE, 35);
  assertNotNull(&header, FIXHeader::SENDER_COMP_ID, 49);
  assertNotNull(&header, FIXHeader::TARGET_COMP_ID, 56);
  assertNotNull(&header, FIXHeader::MSG_SEQ_NUM, 34);
  assertNotNull(&header, FIXHeader::SENDING_TIME, 52);
}

void MessageParser::parseTrailer(FIXTrailer& trailer, FIXTokenizer& tokenizer) {
  Field field;
  if (!tokenizer.next(field)) missingTag(10);
  if (field.getTag() != 10) return tokenizer.pushBack(field);  // for the tokenizer to refuse
  trailer.setCheckSum(text(trailer, FIXTrailer::CHECK_SUM, field));
}

char MessageParser::character(Record& record, int index, const Field& field) {
  const char parsed = Parsing::parseChar(text(record, index, field));
  if (parsed == '\0') FIXInputParser::ensureNotNull(zkstring::EMPTY, &record, index);  // it would be written as nothing
  return parsed;
}

int MessageParser::integer(Record& record, int index, const Field& field) {
  return wholeNumber(text(record, index, field));
}

int MessageParser::wholeNumber(const zkstring& value) {
  int number = 0;
  if (readWhole(value, number)) return number;
  Parsing::parseInt(value);  // has words of its own for most
  throwFrom(here, FieldParsingException("Cannot convert '" + value + "' to int"));
}

double MessageParser::number(Record& record, int index, const Field& field) {
  const zkstring& value = text(record, index, field);
  double number = 0;
  if (readWhole(value, number, std::chars_format::fixed) && std::isfinite(number)) return number;
  if (std::isinf(Parsing::parseDouble(value))) {
    throwFrom(here, FieldParsingException("Number '" + value + "' is too large", record.getFieldName(index)));
  }
  throwFrom(here, FieldParsingException("Cannot convert '" + value + "' to double", record.getFieldName(index)));
}

DateTime MessageParser::timestamp(Record& record, int index, const Field& field) {
  return FIXType::parseUTCTimestamp(text(record, index, field));
}

DateTime MessageParser::date(Record& record, int index, const Field& field) {
  return FIXType::parseLocalMktDate(text(record, index, field));
}

Binary MessageParser::data(Record& record, int index, Field& field, int dataTag, FIXTokenizer& tokenizer) {
  const int length = wholeNumber(field.getValue());
  if (!tokenizer.nextDataTag(field, length) || field.getTag() != dataTag) missingTag(dataTag);
  return text(record, index, field);
}

void MessageParser::takePortions(Group<Portion>& group, Field& field, const PortionTags& tags, Tokenizer& tokenizer) {
  takeGroup(group, field, tags.id, tokenizer, [&](Portion& portion) {
    if (field.getTag() == tags.id) {
      portion.setID(text(portion, Portion::ID, field));
    } else if (field.getTag() == tags.quantity) {
      portion.setQuantity(integer(portion, Portion::QUANTITY, field));
    } else {
      return false;
    }
    return true;
  });
}

void MessageParser::takeParties(Group<Party>& group, Field& field, const PartyTags& tags, Tokenizer& tokenizer) {
  takeGroup(group, field, tags.id, tokenizer, [&](Party& party) {
    if (field.getTag() == tags.id) {
      party.setID(text(party, Party::ID, field));
    } else if (field.getTag() == tags.source) {
      party.setSource(character(party, Party::SOURCE, field));
    } else if (field.getTag() == tags.role) {
      party.setRole(integer(party, Party::ROLE, field));
    } else {
      return false;
    }
    return true;
  });
}

void MessageParser::throwWrongCount(const Field& count, int found) {
  throwFrom(here, FieldParsingException("Tag '" + Parsing::intToString(count.getTag()) + "' counts " +
                                        count.getValue() + " elements, but there are " + Parsing::intToString(found)));
}

}  // namespace orders
