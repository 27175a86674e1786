#include "InputParser.h"

#include "Exceptions.h"
#include "InputSource.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/InputParser";

zkstring nameOf(const DataObject* object, int index) {
  try {
    if (object != nullptr) return object->getFieldName(index);
  } catch (const Exception&) {
    // Told below, as without an object.
  }
  throwFrom(here, FieldParsingException("Null value error while parsing a field"));
}
}  // namespace

void InputParser::parse(ExternalObject* object, InputSource& source, TransformContext& context) {
  parse(object, source.getAsBinary(), context);
}

ExternalObject* InputParser::parse(InputSource& source, TransformContext& context) {
  return parse(source.getAsBinary(), context);
}

void InputParser::ensureNotNull0(const zkstring& value, DataObject* object, int index,
                                 TransformContext& /*context*/) const {
  if (!value.empty()) return;
  const zkstring name = nameOf(object, index);
  throwFrom(here, FieldParsingException("Field '" + name + "' cannot be null.", name));
}

}  // namespace zarvik
