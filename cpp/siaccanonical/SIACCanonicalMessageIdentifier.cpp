#include "siaccanonical/SIACCanonicalMessageIdentifier.h"

#include <iterator>

#include "../StartUp.h"
#include "../TagValueHeader.h"
#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/siaccanonical/SIACCanonicalMessageIdentifier";

constexpr const char* names[] = {"MessageFormat",  "MessageVersion",  "MessageType",    "CFT_CanonicalVersion",
                                 "CFT_BodyLength", "CFT_SIACMsgType", "CFT_MsgSubType", "CFT_MsgOrigin",
                                 "CFT_MsgDest",    "CFT_MsgSeqNo"};
constexpr const char* types[] = {"String", "String", "String", "String", "String",
                                 "String", "String", "String", "String", "Integer"};
static_assert(std::size(names) == std::size(types));

/// The version is what follows "Canonical" and one byte; the indicator of the checksum (25001) is stepped over.
constexpr HeaderTag tags[] = {{10001, 3, 1, 10}, {10002, 4}, {10003, 5, 2}, {10004, 6},
                              {10005, 7},        {10006, 8}, {10007, 9},    {25001}};

/// Odd on purpose: the column stands twice.
[[noreturn]] void fail(const zkstring& reason, unsigned int position) {
  const zkstring column = "[col " + intToString(static_cast<int>(position)) + "] ";
  throwFrom(here, SIACCanonicalParsingException(column + column + reason));
}

constinit const TagValueHeader rule{"10001=Canonical", "Canonical", tags, fail};

DataObjectMetaInfo* headerFields() {
  static DataObjectMetaInfo fields(zkstringliteral("SIACCanonicalHeader"), names, types,
                                   static_cast<int>(std::size(names)));
  return &fields;
}
}  // namespace

DataObject* SIACCanonicalMessageIdentifier::identifyMessage(InputSource& source) {
  return rule.identify(source, headerFields());
}

bool SIACCanonicalMessageIdentifier::isMatch(const char* text, int length) const { return rule.isMatch(text, length); }

zkstring SIACCanonicalMessageIdentifier::getMessageFormat() const { return rule.format; }

}  // namespace zarvik

void registerClassSIACCanonicalMessageIdentifier() {
  zarvik::registerLibraryClass<zarvik::SIACCanonicalMessageIdentifier>(
      zarvik::zkstringliteral("SIACCanonicalMessageIdentifier"));
}
