#pragma once

#include <vector>

#include "AbstractDataObjectSection.h"
#include "DataObject.h"

namespace zarvik {

/// A section of any number of elements.
class DataObjectSectionImpl : public AbstractDataObjectSection {
 public:
  DataObjectSectionImpl() = default;
  DataObjectSectionImpl(const DataObjectSectionImpl& other, DataObject* newParent) { copy(other, newParent); }

  /// Adds clones of the elements of `other` to those that are there, and takes its name and bounds.
  void copy(const DataObjectSectionImpl& other, DataObject* newParent);

  /// Outside the section: FieldNotFoundException from an empty one, std::out_of_range from others.
  DataObject* getElement(int index) const override {
    if (static_cast<std::size_t>(index) >= elements.size()) [[unlikely]]
      throwNoElement(index);
    return elements[static_cast<std::size_t>(index)].get();
  }
  bool removeElement(int index) override;  ///< true; throws FieldNotFoundException outside the section
  /// Throws IllegalArgumentException for an element whose parent is not this section.
  void addElement(DataObject* element) override { addElement(element, true); }
  int getElementIndex(DataObject* element) const override;
  int getElementCount() const override { return static_cast<int>(elements.size()); }
  void removeLastElement() override;
  void clear() override;
  DataObjectSection* clone() const override { return new DataObjectSectionImpl(*this, nullptr); }

 protected:
  zkstring toString() override;
  void addElement(DataObject* element, bool checkParent);
  void deleteAll() {}

 private:
  [[noreturn]] void throwNoElement(int index) const;

  std::vector<SmartPtr<DataObject>> elements;
};

/// A section of at most one element, at the cost of a pointer: a nested object.
class DataObjectSingleElementSectionImpl : public AbstractDataObjectSection {
 public:
  DataObjectSingleElementSectionImpl() = default;
  DataObjectSingleElementSectionImpl(const DataObjectSingleElementSectionImpl& other, DataObject* newParent) {
    copy(other, newParent);
  }

  /// Replaces the element by a clone of that of `other`, whose parent stays unset, and takes its name and bounds.
  void copy(const DataObjectSingleElementSectionImpl& other, DataObject* newParent);

  DataObject* getElement(int index) const override;  ///< throws FieldNotFoundException, with 0 for the size
  bool removeElement(int index) override;            ///< true for 0, whether or not there was an element
  /// Whatever the element's parent. Throws FieldNotFoundException when there is an element.
  void addElement(DataObject* newElement) override;
  int getElementIndex(DataObject* wanted) const override;
  int getElementCount() const override { return element.isNull() ? 0 : 1; }
  void removeLastElement() override;
  void clear() override { element.release(); }
  DataObjectSection* clone() const override { return new DataObjectSingleElementSectionImpl(*this, nullptr); }

 protected:
  zkstring toString() override;

 private:
  SmartPtr<DataObject> element;
};

}  // namespace zarvik
