#pragma once

#include "TagValueOutputWriter.h"

namespace zarvik {

/// The base of generated FIX writers, which append the fields in their order:
///
///     void writeHeader(DataObject* header, TransformContext&) override {
///       appendField("8", "FIX.4.2");
///       ...
///     }
///
/// Tag 8 comes first, and 9 and 10 are never appended: the writer adds the body length as the second field and the
/// checksum as the last. A boolean is written as "true" or "false", which FIXType does not read; whoever wants "Y" uses
/// FIXType::formatBoolean.
class FIXOutputWriter : public TagValueOutputWriter {
 public:
  zkstring endMessage() override;

 protected:
  /// Throws FIXWriterException "<name> is a mandatory field. Tag '<name>[<tag>]' cannot be null."
  [[noreturn]] void requiredFieldMissing(AbstractDataObject* object, int fieldIndex, int tag) const;
};

}  // namespace zarvik
