#pragma once

#include "fix/FIXHeader.h"
#include "fix/FIXOutputWriter.h"
#include "orders/Group.h"
#include "orders/Party.h"
#include "orders/Portion.h"
#include "orders/fix/Version.h"

namespace orders {

/// What the writers of the cartridge's FIX messages share: header and trailer, groups, and fields that the engine has
/// no form for. A writer of one message supplies `writeData`, a line for each field.
class MessageWriter : public zarvik::FIXOutputWriter {
 public:
  explicit MessageWriter(Version version) : version(version) {}

  void writeHeader(zarvik::DataObject* header, zarvik::TransformContext& context) override;
  void writeTrailer(zarvik::DataObject* trailer, zarvik::TransformContext& context) override;

 protected:
  using Record = zarvik::AbstractDataObject;

  bool is44() const { return version == Version::FIX44; }

  /// Throws FIXWriterException for a field without value.
  void require(Record& record, int index, int tag) {
    if (record.isNullValue(index)) requiredFieldMissing(&record, index, tag);
  }
  void appendData(const char* lengthTag, const char* dataTag, const zarvik::Binary& value);

  // Groups, by the tags of their number and of the fields of an element. An empty group is not written.
  void appendPortions(const char* countTag, const Group<Portion>& group, const char* idTag, const char* quantityTag);
  void appendParties(const char* countTag, const Group<Party>& group, const char* idTag, const char* sourceTag,
                     const char* roleTag);

 private:
  const Version version;
};

}  // namespace orders
