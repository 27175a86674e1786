#include "fix/FIXMessageIdentifier.h"

#include <iterator>

#include "../StartUp.h"
#include "../TagValueHeader.h"
#include "Conversion.h"
#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXMessageIdentifier";

constexpr const char* names[] = {
    "MessageFormat", "MessageVersion",   "MessageType",     "BeginString", "BodyLength",  "MsgType",     "SenderCompID",
    "TargetCompID",  "OnBehalfOfCompID", "DeliverToCompID", "MsgSeqNum",   "SenderSubID", "TargetSubID", "SendingTime"};
constexpr const char* types[] = {"String", "String", "String", "String",  "Integer", "String", "String",
                                 "String", "String", "String", "Integer", "String",  "String", "String"};
static_assert(std::size(names) == std::size(types));

/// The version is what follows "FIX.". The tags without a field are stepped over, the sending time (52) among them.
constexpr HeaderTag tags[] = {{8, 3, 1, 4}, {9, 4},   {34, 10}, {35, 5, 2}, {49, 6}, {50, 11}, {56, 7},
                              {57, 12},     {115, 8}, {128, 9}, {43},       {52},    {90},     {91},
                              {97},         {116},    {122},    {129},      {142},   {143},    {144},
                              {145},        {212},    {213},    {347},      {369},   {370}};

[[noreturn]] void fail(const zkstring& reason, unsigned int position) {
  throwFrom(here, FIXParsingException("[col " + intToString(static_cast<int>(position)) + "] " + reason));
}

constinit const TagValueHeader rule{"8=FIX", "FIX", tags, fail};

DataObjectMetaInfo* headerFields() {
  static DataObjectMetaInfo fields(zkstringliteral("FIXHeader"), names, types, static_cast<int>(std::size(names)));
  return &fields;
}
}  // namespace

DataObject* FIXMessageIdentifier::identifyMessage(InputSource& source) { return rule.identify(source, headerFields()); }

bool FIXMessageIdentifier::isMatch(const char* text, int length) const { return rule.isMatch(text, length); }

zkstring FIXMessageIdentifier::getMessageFormat() const { return rule.format; }

}  // namespace zarvik

void registerClassFIXMessageIdentifier() {
  zarvik::registerLibraryClass<zarvik::FIXMessageIdentifier>(zarvik::zkstringliteral("FIXMessageIdentifier"));
}
