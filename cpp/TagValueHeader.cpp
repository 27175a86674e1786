#include "TagValueHeader.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "Conversion.h"
#include "Exceptions.h"
#include "GenericDataObject.h"
#include "InputSource.h"
#include "KelvaraTypes.h"
#include "Parsing.h"
#include "WrapperObjects.h"

namespace zarvik {
namespace {

constexpr char delimiter = '\x01';
constexpr unsigned int notFound = ~0U;

/// The next field of `text`; `position` moves behind its delimiter, or one behind the end where that is missing.
zkstring nextField(const zkstring& text, unsigned int& position) {
  const unsigned int start = position;
  const unsigned int end = std::min(text.find(delimiter, start), text.length());
  position = end + 1;
  return text.substr(start, end - start);
}

unsigned int equalSign(const zkstring& field) {
  const unsigned int equal = field.find('=');
  if (equal == notFound) {
    throw TransformException("'Name or value' can't be empty. Unable to parse tag=value of form " + field);
  }
  return equal;
}

void store(GenericDataObject& header, int field, const zkstring& value) {
  if (header.getFieldType(field) == KelvaraTypes::INT_TYPE) {
    header.setField(field, IntObject(Parsing::parseInt(value)));
  } else {
    header.setField(field, StringObject(value));
  }
}

void store(GenericDataObject& header, const HeaderTag& tag, const zkstring& value) {
  if (tag.field >= 0) store(header, tag.field, value);
  if (tag.secondField >= 0) store(header, tag.secondField, value.substr(std::min(tag.secondFrom, value.length())));
}

void readFields(std::span<const HeaderTag> tags, const zkstring& text, GenericDataObject& header,
                unsigned int& position) {
  while (position < text.length()) {
    const zkstring field = nextField(text, position);
    const unsigned int equal = equalSign(field);
    const int number = v_atoi(field.data(), field.data() + equal);
    const auto tag =
        std::find_if(tags.begin(), tags.end(), [number](const HeaderTag& each) { return each.tag == number; });
    if (tag == tags.end()) return;
    store(header, *tag, field.substr(equal + 1));
  }
}
}  // namespace

bool TagValueHeader::isMatch(const char* bytes, int length) const {
  return length >= static_cast<int>(prefix.length()) && std::memcmp(bytes, prefix.data(), prefix.length()) == 0;
}

DataObject* TagValueHeader::identify(InputSource& source, DataObjectMetaInfo* fields) const {
  int length = 0;
  const char* const bytes = source.getAsBytes(length);
  if (!isMatch(bytes, length)) return nullptr;
  auto header = std::make_unique<GenericDataObject>(fields, false);
  header->setField(0, StringObject(format));
  unsigned int position = 0;
  try {
    readFields(tags, zkstring(bytes, static_cast<unsigned int>(length)), *header, position);
  } catch (const TransformException& error) {
    fail(error.getMessage(), position);
  }
  return header.release();
}

}  // namespace zarvik
