#include "FixHeader.h"

#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "Fields.h"

using zarvik::DataObjectMetaInfo;
using zarvik::zkstring;
using zarvik::zkstringliteral;

namespace route {
namespace {

/// The record's fields, and where each stands in the message: the first three come from the frame.
const char* const names[] = {"MessageFormat", "MessageVersion", "MessageType", "SenderCompID",
                             "TargetCompID",  "TargetSubID",    "ApplVerID"};
const char* const types[] = {"String", "String", "String", "String", "String", "String", "String"};
constexpr int tags[] = {0, 8, 35, 49, 56, 57, 1128};
constexpr int fieldCount = std::size(names);
constexpr int fromFrame = 3;
static_assert(std::size(types) == fieldCount && std::size(tags) == fieldCount);

DataObjectMetaInfo* headerFields() {
  static DataObjectMetaInfo info(zkstringliteral("FixHeader"), names, types, fieldCount);
  return &info;
}

zkstring textOf(std::string_view bytes) { return zkstring(bytes.data(), static_cast<unsigned int>(bytes.size())); }
}  // namespace

FixHeader::FixHeader(std::string_view message, const Frame& frame) : GenericDataObject(headerFields(), false) {
  setField(0, zkstringliteral("FIX"));
  setField(1, textOf(frame.beginString));
  setField(2, textOf(frame.messageType));
  Fields fields(message);
  try {
    while (fields.next()) {
      for (int i = fromFrame; i < fieldCount; ++i) {
        if (tags[i] == fields.getTag() && isNull(i)) setField(i, textOf(fields.getValue()));
      }
    }
  } catch (const zarvik::Exception&) {
    // A garbled field is for the input format to report; the message is FIX by its frame.
  }
}

}  // namespace route
