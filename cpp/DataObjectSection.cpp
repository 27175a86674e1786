#include "DataObjectSection.h"

#include "DataObject.h"
#include "DataObjectXML.h"

namespace zarvik {

void DataObjectSection::assign(DataObjectSection* target, DataObjectSection* source) {
  target->clear();
  for (int i = 0; i < source->getElementCount(); ++i) {
    DataObject* const element = source->getElement(i);
    element->setParentSection(target);
    target->addElement(element);
  }
}

void DataObjectSection::appendXML(zkstringbuffer& out, const zkstring& tag, int level) const {
  for (int i = 0; i < getElementCount(); ++i) {
    DataObjectXML::appendIndent(out, level);
    out.append('<').append(tag).append(">\n", 2);
    out.append(getElement(i)->toXMLString(level + 1));
    DataObjectXML::appendIndent(out, level);
    out.append("</", 2).append(tag).append(">\n", 2);
  }
}

}  // namespace zarvik
