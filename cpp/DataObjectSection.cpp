#include "DataObjectSection.h"

#include "DataObject.h"
#include "XMLTag.h"

namespace zarvik {
namespace {

void append(zkstringbuffer& out, std::string_view text) {
  out.append(text.data(), static_cast<unsigned int>(text.size()));
}
}  // namespace

void DataObjectSection::assign(DataObjectSection* target, DataObjectSection* source) {
  target->clear();
  for (int i = 0; i < source->getElementCount(); ++i) {
    DataObject* const element = source->getElement(i);
    element->setParentSection(target);
    target->addElement(element);
  }
}

void DataObjectSection::appendXML(zkstringbuffer& out, const XMLTag& tag, int level) const {
  const unsigned int depth = DataObjectXML::depth(level);
  const int count = getElementCount();
  for (int i = 0; i < count; ++i) {
    append(out, tag.beginLine(depth));
    out.append(getElement(i)->toXMLString(level + 1));
    append(out, tag.endLine(depth));
  }
}

}  // namespace zarvik
