#include "fix/FIXHeader.h"

#include <algorithm>
#include <iterator>

#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "ThrowFrom.h"
#include "fix/FIXHeaderParser.h"
#include "fix/FIXType.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXHeader";
constexpr unsigned int versionStart = 4;  ///< behind "FIX."

constexpr const char* names[] = {
    "MessageFormat", "MessageVersion",   "MessageType",     "BeginString", "BodyLength",  "MsgType",     "SenderCompID",
    "TargetCompID",  "OnBehalfOfCompID", "DeliverToCompID", "MsgSeqNum",   "SenderSubID", "TargetSubID", "SendingTime"};
constexpr const char* types[] = {"String", "String", "String", "String",  "Integer", "String", "String",
                                 "String", "String", "String", "Integer", "String",  "String", "String"};
static_assert(std::size(names) == FIXHeader::FIELD_COUNT && std::size(types) == FIXHeader::FIELD_COUNT);
}  // namespace

FIXHeader::FIXHeader() : HeaderRecord(zkstringliteral("FIX")) {}

DataObjectMetaInfo* FIXHeader::metaInfo() {
  static DataObjectMetaInfo info(zkstringliteral("FIXHeader"), names, types, FIELD_COUNT);
  return &info;
}

void FIXHeader::parseHeader(const char* text, int length) { FIXHeaderParser().parseHeader(*this, text, length); }

void FIXHeader::setBeginString(const zkstring& value) {
  setText(BEGIN_STRING, value);
  setText(MESSAGE_VERSION, value.substr(std::min(versionStart, value.length())));
}

void FIXHeader::setMsgType(const zkstring& value) {
  setText(MSG_TYPE, value);
  setText(MESSAGE_TYPE, value);
}

void FIXHeader::setSendingTime(const DateTime& value) {
  writeText(SENDING_TIME, [&value](zkstring& out) { FIXType::formatUTCTimestamp(value, out); });
}

void FIXHeader::throwOutOfBounds(int /*index*/) const {
  throwFrom(here, FieldNotFoundException("Field index out of bounds"));
}

}  // namespace zarvik
