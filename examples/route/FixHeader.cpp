#include "FixHeader.h"

#include "Exceptions.h"
#include "Fields.h"
#include "zkstringbuffer.h"

using zarvik::Object;
using zarvik::zkstring;
using zarvik::zkstringbuffer;

namespace route {
namespace {

/// The record's fields: name, and tag in the message; the first three come from the frame.
struct HeaderField {
  const char* name;
  int tag;
};
constexpr HeaderField headerFields[] = {{"MessageFormat", 0}, {"MessageVersion", 8}, {"MessageType", 35},
                                        {"SenderCompID", 49}, {"TargetCompID", 56},  {"TargetSubID", 57},
                                        {"ApplVerID", 1128}};
constexpr std::size_t fromFrame = 3;

/// A text as a field's value; not counted, so it belongs to whoever asked for the field.
class TextValue : public Object {
 public:
  explicit TextValue(const zkstring& text) : text(text) {}
  zkstring toString() const override { return text; }

 private:
  zkstring text;
};

zkstring textOf(std::string_view bytes) { return zkstring(bytes.data(), static_cast<unsigned int>(bytes.size())); }

void appendEscaped(zkstringbuffer& xml, const zkstring& text) {
  for (unsigned int i = 0; i < text.length(); ++i) {
    switch (text[i]) {
      case '&':
        xml.append("&amp;");
        break;
      case '<':
        xml.append("&lt;");
        break;
      case '>':
        xml.append("&gt;");
        break;
      default:
        xml.append(text[i]);
    }
  }
}
}  // namespace

FixHeader::FixHeader(std::string_view message, const Frame& frame) {
  static_assert(std::size(headerFields) == fieldCount);
  values = {zkstring("FIX"), textOf(frame.beginString), textOf(frame.messageType)};
  Fields fields(message);
  try {
    while (fields.next()) {
      for (std::size_t i = fromFrame; i < fieldCount; ++i) {
        if (headerFields[i].tag == fields.getTag() && values[i].empty()) values[i] = textOf(fields.getValue());
      }
    }
  } catch (const zarvik::Exception&) {
    // A garbled field is for the input format to report; the message is FIX by its frame.
  }
}

Object* FixHeader::getField(const zkstring& name) const {
  for (std::size_t i = 0; i < fieldCount; ++i) {
    if (name == headerFields[i].name) return values[i].empty() ? nullptr : new TextValue(values[i]);
  }
  return nullptr;
}

zkstring FixHeader::toXMLString() {
  zkstringbuffer xml("<FixHeader>\n");
  for (std::size_t i = 0; i < fieldCount; ++i) {
    if (values[i].empty()) continue;
    xml.append("\t<").append(headerFields[i].name).append(">");
    appendEscaped(xml, values[i]);
    xml.append("</").append(headerFields[i].name).append(">\n");
  }
  return xml.append("</FixHeader>\n");
}

}  // namespace route
