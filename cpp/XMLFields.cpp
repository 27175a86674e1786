#include "XMLFields.h"

#include <cstring>

#include "Boxing.h"
#include "FieldMetaInfo.h"
#include "Parsing.h"
#include "RawMessageObject.h"
#include "TextForms.h"

namespace zarvik {
namespace {

/// Copies in steps, for which there must be room behind the piece: cheaper than a call, as tags are short.
char* putTag(char* at, std::string_view piece) {
  for (std::size_t i = 0; i < piece.size(); i += XMLTag::step) std::memcpy(at + i, piece.data() + i, XMLTag::step);
  return at + piece.size();
}
}  // namespace

XMLFields::XMLFields(int level, int fieldCount) : level(level), depth(DataObjectXML::depth(level)) {
  constexpr unsigned int usualField = 32;  // bytes; growing step by step would cost more than the text
  out.reserve(usualField * static_cast<unsigned int>(fieldCount));
}

template <class T>
void XMLFields::setWhole(T value) {
  if (field->hasStoredForm()) return setBoxed(typename Boxing<T>::Box(value));
  endLine(putText(beginLine(longTextSize), value));
}

void XMLFields::setDouble(double value) {
  if (field->hasStoredForm()) return setBoxed(DoubleObject(value));
  endLine(putText(beginLine(doubleTextSize), value));
}

void XMLFields::setString(const zkstring& value) {
  if (field->hasStoredForm()) return setBoxed(StringObject(value));
  writeText(value);
}

void XMLFields::setRawMessage(const RawMessage& value) { setBoxed(RawMessageObject(value)); }

void XMLFields::setObject(const Object* value) {
  if (const SectionObject* const section = SectionObject::of(value)) {
    section->getSection()->appendXML(out, field->getXMLTag(), level);
  } else {
    writeText(Parsing::runtimeObjectToString(const_cast<Object*>(value), field->getType()));
  }
}

void XMLFields::writeText(const zkstring& text) {
  const zkstring escaped = DataObjectXML::fixXMLCharData(text);
  char* const at = beginLine(escaped.length());
  std::memcpy(at, escaped.data(), escaped.length());
  endLine(at + escaped.length());
}

char* XMLFields::beginLine(unsigned int room) {
  const std::string_view begin = field->getXMLTag().begin(depth);
  return putTag(out.getTail(begin.size() + room + field->getXMLTag().end().size() + XMLTag::step), begin);
}

void XMLFields::endLine(char* at) {
  at = putTag(at, field->getXMLTag().end());
  out.setBufferLength(static_cast<int>(at - out.data()));
}

}  // namespace zarvik
