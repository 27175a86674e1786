#pragma once

#include <memory>
#include <vector>

#include "DataObjectBase.h"

namespace zarvik {

class FieldMetaInfo;

/// A record of any shape, built from metadata at run time: every field is kept as a box of its own, and null is the
/// absence of one.
///
///     DataObjectMetaInfo* meta = ...;
///     SmartPtr<DataObject> record(new GenericDataObject(meta, true));  // deletes `meta` at its end
///     record->setField("Symbol", StringObject("ABC"));
///
/// Values are cloned on their way in and out, so a field costs an allocation each time. A section comes into being
/// when `getSection` first asks for it, as a list, and lives as long as the record. Indexes outside the metadata
/// throw FieldNotFoundException.
class GenericDataObject : public DataObjectBase {
 public:
  GenericDataObject(DataObjectMetaInfo* metaInfo, bool ownsMetaInfo);
  GenericDataObject(DataObjectSection* parent, DataObjectMetaInfo* metaInfo, bool ownsMetaInfo);
  /// A deep copy without a parent, which does not own the metadata.
  GenericDataObject(const GenericDataObject& other);
  GenericDataObject& operator=(const GenericDataObject&) = delete;
  ~GenericDataObject() override;

  using DataObjectBase::getField;
  using DataObjectBase::getSection;
  using DataObjectBase::isNull;
  using DataObjectBase::setField;
  using DataObjectBase::setNull;

  DataObjectSection* getSection(int index) const override;
  bool getField(int index, Object& target) const override;
  Object* getField(int index) const override;  ///< a clone
  Object* getFieldCheckNull(int index) const override;
  bool isNull(int index) const override;
  void setNull(int index) override;
  void setField(int index, const Object* value) override;  ///< `value` is not null: that is what `setNull` is for
  int getFieldCount() const override { return static_cast<int>(fields.size()); }
  DataObjectSection* getParentSection() const override { return parentSection; }
  void setParentSection(DataObjectSection* section) override { parentSection = section; }
  /// Odd on purpose: a section that was once asked for counts as a value.
  bool isEmpty() const override;
  DataObjectMetaInfo* getMetaInfo() const override { return metaInfo; }
  void reset() override {}  ///< odd on purpose: keeps all values
  zkstring getRootXMLTag() override;
  DataObject* createSectionElement(const zkstring& sectionName, DataObjectSection* section) const override;
  Object* clone() const override { return new GenericDataObject(*this); }

  using DataObjectBase::getQualifiedName;
  zkstring getQualifiedName(const zkstring& name) { return getQualifiedName(getFieldIndex(name)); }
  FieldMetaInfo* getFieldMetaInfo(int index) const;
  bool isSynthesized(int index) const;

 private:
  SmartPtr<Object>& field(int index) const;  ///< after a test of the index
  DataObjectSection* addSection(int index) const;

  DataObjectSection* parentSection;
  DataObjectMetaInfo* metaInfo;
  std::unique_ptr<DataObjectMetaInfo> ownMetaInfo;
  // Sections appear on first access, also through a record that looks constant. A SmartPtr is the owner of a box as
  // well as of a counted record.
  mutable std::vector<SmartPtr<Object>> fields;
  mutable std::vector<std::unique_ptr<DataObjectSection>> sections;  ///< all that were made here, in use or not
};

}  // namespace zarvik
