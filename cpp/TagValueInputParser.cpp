#include "TagValueInputParser.h"

#include "Conversion.h"
#include "DataObjectSection.h"
#include "Exceptions.h"
#include "TagNames.h"
#include "ThrowFrom.h"

namespace zarvik {

void TagValueInputParser::assertSectionEmpty(DataObjectSection* section, int tag) const {
  if (section->getElementCount() < 1) return;
  throwFrom(source(), FieldParsingException("Duplicate section Tag '" + intToString(tag) + "'."));
}

void TagValueInputParser::assertConstraints(AbstractDataObject* object, int sectionIndex, int tag) const {
  try {
    object->getSection(sectionIndex)->assertConstraints();
  } catch (const SectionConstraintException& error) {
    throwFrom(source(), SectionConstraintException("Tag " + quotedTag(*object, sectionIndex, tag) + " expected. " +
                                                   error.getMessage()));
  }
}

void TagValueInputParser::missingTag(int tag) const {
  throwFrom(source(), FieldParsingException("Tag '" + intToString(tag) + "' expected."));
}

void TagValueInputParser::throwDuplicateTag(AbstractDataObject* object, int fieldIndex, int tag) const {
  throwFrom(source(), FieldParsingException("Duplicate Tag " + quotedTag(*object, fieldIndex, tag) + "."));
}

void TagValueInputParser::throwExpected(AbstractDataObject* object, int fieldIndex, int tag) const {
  throwFrom(source(), FieldParsingException("Tag " + quotedTag(*object, fieldIndex, tag) + " expected."));
}

void TagValueInputParser::throwNull(DataObject* object, int fieldIndex) const {
  zkstring name;
  try {
    name = object->getFieldName(fieldIndex);
  } catch (const FieldNotFoundException&) {
    throwFrom(source(), FieldParsingException("Null value error while parsing a field"));
  }
  throwNull(name);
}

void TagValueInputParser::throwNull(const zkstring& fieldName) const {
  throwFrom(source(), FieldParsingException("Field '" + fieldName + "' cannot be null.", fieldName));
}

}  // namespace zarvik
