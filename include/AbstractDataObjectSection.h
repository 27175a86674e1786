#pragma once

#include "DataObjectSection.h"

namespace zarvik {

class SectionMetaInfo;

/// What all sections have: an owner, a name and bounds.
class AbstractDataObjectSection : public DataObjectSection {
 public:
  AbstractDataObjectSection() = default;  ///< `initialize` must follow
  AbstractDataObjectSection(DataObject* parent, const zkstring& name, int minOccurs, int maxOccurs)
      : minOccurs(minOccurs), maxOccurs(maxOccurs), parent(parent), name(name) {}
  AbstractDataObjectSection(const AbstractDataObjectSection&) = delete;
  AbstractDataObjectSection& operator=(const AbstractDataObjectSection&) = delete;

  /// `maxOccurs` -1 stands for any number. Records call it from their constructors, for each of their sections.
  void initialize(DataObject* owner, const zkstring& sectionName, int least, int greatest);

  /// The same by the description of the section.
  void initialize(DataObject* owner, const SectionMetaInfo& described);

  int getMinOccurs() const { return minOccurs; }
  int getMaxOccurs() const { return maxOccurs; }
  zkstring getSectionName() { return getName(); }
  void reset() { clear(); }

  DataObject* createElement() override;
  zkstring getName() override { return name; }
  zkstring getQualifiedName() override;
  DataObject* getParent() const override { return parent; }
  DataObject* getRootDataObject() const override;
  void assertConstraints() const override;
  bool isEmpty() const override;

  /// The elements within tags at `level` tabs; by default 1, and the mangled name. Without elements empty.
  zkstring toXMLString() const { return toXMLString(1); }
  zkstring toXMLString(int level) const;
  zkstring toXMLString(const zkstring& tag, int level) const;

 protected:
  /// Throws FieldNotFoundException for the access of an element.
  [[noreturn]] void throwElementIndexOutOfBounds(int index, int size) const;

 private:
  int minOccurs = 0;
  int maxOccurs = -1;
  DataObject* parent = nullptr;
  zkstring name;
};

}  // namespace zarvik
