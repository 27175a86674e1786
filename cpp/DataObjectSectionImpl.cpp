#include "DataObjectSectionImpl.h"

#include <algorithm>
#include <stdexcept>

#include "Conversion.h"
#include "Exceptions.h"
#include "GuardedCast.h"
#include "LiteralTail.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/DataObjectSectionImpl";

SmartPtr<DataObject> cloneOf(const DataObject* element) { return guardedCast<DataObject>(element->clone()); }

[[noreturn]] void throwNoLastElement(const zkstring& qualifiedName, const char* tail) {
  throwFrom(here, FieldNotFoundException("Error accessing last element of section " + qualifiedName + tail));
}

void takeOver(AbstractDataObjectSection& section, const AbstractDataObjectSection& other, DataObject* parent) {
  const zkstring name = const_cast<AbstractDataObjectSection&>(other).getName();
  section.initialize(parent, name, other.getMinOccurs(), other.getMaxOccurs());
}
}  // namespace

void DataObjectSectionImpl::copy(const DataObjectSectionImpl& other, DataObject* newParent) {
  const std::size_t count = other.elements.size();  // as it is now: `other` may be this section
  for (std::size_t i = 0; i < count; ++i) {
    const SmartPtr<DataObject> element = cloneOf(other.elements[i].get());
    element->setParentSection(this);
    addElement(element.get());
  }
  takeOver(*this, other, newParent);
}

bool DataObjectSectionImpl::removeElement(int index) {
  if (index < 0 || index >= getElementCount()) {
    throwFrom(here, FieldNotFoundException(literalTail("Index out of bounds ", index)));
  }
  elements.erase(elements.begin() + index);
  return true;
}

int DataObjectSectionImpl::getElementIndex(DataObject* element) const {
  const auto place = std::find_if(elements.begin(), elements.end(),
                                  [element](const SmartPtr<DataObject>& each) { return each.get() == element; });
  return place != elements.end() ? static_cast<int>(place - elements.begin()) : -1;
}

void DataObjectSectionImpl::removeLastElement() {
  if (elements.empty()) throwNoLastElement(getQualifiedName(), ". Section index out of bound, size = 0");
  elements.pop_back();
}

void DataObjectSectionImpl::clear() { elements.clear(); }

zkstring DataObjectSectionImpl::toString() { return "Records = " + intToString(getElementCount()); }

void DataObjectSectionImpl::addElement(DataObject* element, bool checkParent) {
  if (checkParent && element->getParentSection() != this) {
    throwFrom(here, IllegalArgumentException("The parent of the element added is not this section"));
  }
  elements.push_back(SmartPtr<DataObject>(element));  // held before the list grows, which may fail
}

void DataObjectSectionImpl::throwNoElement(int index) const {
  if (elements.empty()) throwElementIndexOutOfBounds(index, 0);
  throw std::out_of_range("invalid vector<T> subscript");
}

void DataObjectSingleElementSectionImpl::copy(const DataObjectSingleElementSectionImpl& other, DataObject* newParent) {
  element = other.element.isNull() ? SmartPtr<DataObject>() : cloneOf(other.element.get());
  takeOver(*this, other, newParent);
}

DataObject* DataObjectSingleElementSectionImpl::getElement(int index) const {
  if (index != 0 || element.isNull()) throwElementIndexOutOfBounds(index, 0);
  return element.get();
}

bool DataObjectSingleElementSectionImpl::removeElement(int index) {
  if (index != 0) return false;
  clear();
  return true;
}

void DataObjectSingleElementSectionImpl::addElement(DataObject* newElement) {
  if (!element.isNull()) {
    throwFrom(here, FieldNotFoundException("Cannot add more than one element to this section"));
  }
  element = newElement;
}

int DataObjectSingleElementSectionImpl::getElementIndex(DataObject* wanted) const {
  return wanted != nullptr && wanted == element.get() ? 0 : -1;
}

void DataObjectSingleElementSectionImpl::removeLastElement() {
  if (element.isNull()) throwNoLastElement(getQualifiedName(), ". Section index out of bounds, size = 0");
  clear();
}

zkstring DataObjectSingleElementSectionImpl::toString() { return element.isNull() ? zkstring() : element->toString(); }

}  // namespace zarvik
