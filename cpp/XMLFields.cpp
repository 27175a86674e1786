#include "XMLFields.h"

#include <charconv>
#include <cstring>

#include "Boxing.h"
#include "Conversion.h"
#include "FieldMetaInfo.h"
#include "Parsing.h"
#include "RawMessageObject.h"

namespace zarvik {
namespace {

char* put(char* at, const char* bytes, std::size_t length) {
  std::memcpy(at, bytes, length);
  return at + length;
}
char* put(char* at, std::string_view text) { return put(at, text.data(), text.size()); }
}  // namespace

XMLFields::XMLFields(int level, int fieldCount) : level(level), depth(DataObjectXML::depth(level)) {
  constexpr unsigned int usualField = 32;  // bytes; growing step by step would cost more than the text
  out.reserve(usualField * static_cast<unsigned int>(fieldCount));
}

template <class T>
void XMLFields::setWhole(T value) {
  if (field->hasStoredForm()) return setBoxed(typename Boxing<T>::Box(value));
  char* const at = beginLine(longTextSize);
  endLine(std::to_chars(at, at + longTextSize, value).ptr);
}

void XMLFields::setDouble(double value) {
  if (field->hasStoredForm()) return setBoxed(DoubleObject(value));
  char* const at = beginLine(doubleTextSize);
  doubleToString(value, at);
  endLine(at + std::strlen(at));
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
  endLine(put(beginLine(escaped.length()), escaped.data(), escaped.length()));
}

char* XMLFields::beginLine(unsigned int room) {
  const std::string_view begin = field->getXMLTag().begin(depth);
  return put(out.getTail(begin.size() + room + field->getXMLTag().end().size()), begin);
}

void XMLFields::endLine(char* at) {
  at = put(at, field->getXMLTag().end());
  out.setBufferLength(static_cast<int>(at - out.data()));
}

}  // namespace zarvik
