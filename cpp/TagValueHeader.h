#pragma once

#include <span>

#include "zkstring.h"

namespace zarvik {

class DataObject;
class DataObjectMetaInfo;
class InputSource;

/// What one tag of a header fills: a field of the record, by index, and perhaps a second one, which takes the text
/// from a certain byte on. -1 stands for no field: a tag without any is stepped over.
struct HeaderTag {
  int tag;
  int field = -1;
  int secondField = -1;
  unsigned int secondFrom = 0;
};

/// The header of one tag=value format, by which its messages are known.
struct TagValueHeader {
  zkstringliteral prefix;           ///< how messages begin
  zkstringliteral format;           ///< the value of the record's first field
  std::span<const HeaderTag> tags;  ///< the header ends at the first tag that is none of these
  void (*fail)(const zkstring& reason, unsigned int position);  ///< throws; the position is behind the bad field

  bool isMatch(const char* bytes, int length) const;

  /// A new record of the fields, with count 0, filled from the message's header; null if the message is of another
  /// format. Integer fields are read as such.
  DataObject* identify(InputSource& source, DataObjectMetaInfo* fields) const;
};

}  // namespace zarvik
