#pragma once

#include "AbstractDataObject.h"
#include "InputParser.h"

namespace zarvik {

/// The checks that generated parsers of tag=value formats make, and the texts of what they find. The loop over the
/// fields is generated code, which knows the tags; unknown ones it leaves to `assertEmpty` of the tokenizer.
///
/// All throw FieldParsingException, but for `assertConstraints`. A check that finds nothing costs a few instructions.
class TagValueInputParser : public InputParser {
 protected:
  using InputParser::ensureNotNull;

  /// Before a field is stored, since it may come once.
  void assertTagNew(AbstractDataObject* object, int fieldIndex, int tag) const {
    if (object->isNotNull(fieldIndex)) [[unlikely]]
      throwDuplicateTag(object, fieldIndex, tag);
  }
  /// Before a group is read: a second count tag is a duplicate.
  void assertSectionEmpty(DataObjectSection* section, int tag) const;

  /// After the body, for every mandatory field.
  void assertNotNull(AbstractDataObject* object, int fieldIndex, int tag) const {
    if (object->isNull(fieldIndex)) [[unlikely]]
      throwExpected(object, fieldIndex, tag);
  }
  /// After the body, for every group: throws SectionConstraintException with the tag before what the section says.
  void assertConstraints(AbstractDataObject* object, int sectionIndex, int tag) const;

  /// Throw for an empty value; the error knows the field's name, too.
  void ensureNotNull(const zkstring& value, DataObject* object, int fieldIndex) const {
    if (value.empty()) [[unlikely]]
      throwNull(object, fieldIndex);
  }
  void ensureNotNull(const zkstring& value, const zkstring& fieldName) const {
    if (value.empty()) [[unlikely]]
      throwNull(fieldName);
  }

  [[noreturn]] void missingTag(int tag) const;
  void missingTag(const zkstring& value, int tag) const {  ///< throws for an empty value
    if (value.empty()) [[unlikely]]
      missingTag(tag);
  }

  [[noreturn]] void throwDuplicateTag(AbstractDataObject* object, int fieldIndex, int tag) const;

 private:
  virtual const char* source() const = 0;  ///< the origin that the errors name

  [[noreturn]] void throwExpected(AbstractDataObject* object, int fieldIndex, int tag) const;
  [[noreturn]] void throwNull(DataObject* object, int fieldIndex) const;
  [[noreturn]] void throwNull(const zkstring& fieldName) const;
};

}  // namespace zarvik
