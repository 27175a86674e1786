#pragma once

#include "DataObjectSection.h"
#include "WrapperObjects.h"

namespace zarvik {

/// A section as a field value: refers to the section, and deletes it at its own end only if told that it owns it.
/// Copies and clones refer to the same section and never own it.
class SectionObject : public WrapperObject {
 public:
  SectionObject() = default;
  SectionObject(DataObjectSection& section) : section(&section) {}
  SectionObject(const DataObjectSection& section);
  SectionObject(DataObjectSection* section, bool owner) : section(section), owner(owner) {}
  SectionObject(const SectionObject& other) : WrapperObject(), section(other.section) {}
  SectionObject& operator=(const SectionObject& other);
  ~SectionObject() override;

  /// `value` as a section, null when it is none; `value` is not null. For most values the type word tells, at a
  /// fraction of a cast's cost.
  static const SectionObject* of(const Object* value);

  DataObjectSection* getSection() const { return section; }
  /// Lets go of the section held so far, and refers to the new one without owning it.
  void setSection(DataObjectSection* newSection);
  void setSection(DataObjectSection& newSection) { setSection(&newSection); }
  void setSection(const DataObjectSection& newSection);
  void setObject(const Object* value) override;  ///< throws ClassCastException for anything but a SectionObject

  zkstring toString() const override;
  Object* clone() const override { return new SectionObject(*this); }
  const zkstring& getObjectType() const override;

 private:
  DataObjectSection* section = nullptr;
  bool owner = false;
};

}  // namespace zarvik
