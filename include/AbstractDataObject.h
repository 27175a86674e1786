#pragma once

#include "DataObjectBase.h"

namespace zarvik {

class XMLFields;

/// The base of records with typed members: the generated ones and the library's own.
///
/// A class below this has an array of flags, one for each field, true where the field has a value; it hands the array
/// to the constructor and clears it (`setAllFieldsToNull`). It supplies `getField0` and `setField0`, which box and
/// unbox its members, `clone`, and with sections `createSectionElement`; see docs/cartridges.md.
///
/// Null state costs a byte a field and no allocation. The operations on flags check no index.
class AbstractDataObject : public DataObjectBase {
 public:
  using DataObjectBase::getField;
  using DataObjectBase::isNull;
  using DataObjectBase::setField;
  using DataObjectBase::setNull;

  AbstractDataObject(const AbstractDataObject&) = delete;  // a record is not copied by accident: `clone` it
  AbstractDataObject& operator=(const AbstractDataObject&) = delete;

  bool getField(int index, Object& target) const override;
  Object* getField(int index) const override;
  bool isNull(int index) const override { return isNullValue(index); }
  void setNull(int index) override { setNullValue(index); }
  void setField(int index, const Object* value) override;  ///< the flag stays set if `setField0` throws
  DataObjectSection* getParentSection() const override { return parentSection; }
  void setParentSection(DataObjectSection* section) override { parentSection = section; }
  bool isEmpty() const override;
  DataObjectMetaInfo* getMetaInfo() const override { return metaInfo; }
  void reset() override { setAllFieldsToNull(); }
  DataObject* createSectionElement(const zkstring& sectionName, DataObjectSection* section) const override;  ///< throws
  zkstring toString() const override;  ///< the XML text

  // For typed accessors: one memory access, no virtual call.
  bool isNullValue(int index) const { return !flags[index]; }
  bool isNotNull(int index) const { return flags[index]; }
  void setNullValue(int index) { flags[index] = false; }
  void setNotNull(int index) { flags[index] = true; }
  void setNull(int index, bool nullIt) {
    if (nullIt) {
      setNull(index);
    } else {
      setNotNull(index);
    }
  }
  /// Throws FieldNullException "Attempt to access field ..." for a field that is null.
  void ensureNotNull(int index) const {
    if (isNullValue(index)) [[unlikely]]
      throwNullValueException(index);
  }
  void assertNotNull(int index) const;  ///< throws FieldNullException "Not-null check failed ..." for null

 protected:
  /// `meta` and `flags` outlive the record; the flags stay as they are.
  AbstractDataObject(DataObjectMetaInfo* meta, bool* flags, DataObjectSection* parent)
      : parentSection(parent), flags(flags), metaInfo(meta) {}
  /// For clones: of the type of `other`, whose values and flags are the caller's to copy.
  AbstractDataObject(const AbstractDataObject& other, bool* flags, DataObjectSection* parent)
      : AbstractDataObject(other.metaInfo, flags, parent) {}

  void setAllFieldsToNull();
  [[noreturn]] void throwNullValueException(int index) const;

  /// Stores `value`, which is not null, read by the getter of the member's kind. Unknown indexes come here, which
  /// throws FieldNotFoundException.
  virtual void setField0(int index, const Object* value);
  /// The value of a field that is not null: put into `reuse` by the setter of its kind, or boxed anew without one.
  /// A section, and a nested object that is kept as one, gives a SectionObject; a record that is kept by itself, as in
  /// ExternalObject, gives itself. Unknown indexes come here, which throws FieldNotFoundException.
  virtual Object* getField0(int index, Object* reuse) const;
  virtual Object* getField0(int index) const;  ///< by default the form above without `reuse`

  zkstring toXMLStringImpl(int level) override;

 private:
  void writeField(int index, XMLFields& out) const;

  DataObjectSection* parentSection;
  bool* flags;
  DataObjectMetaInfo* metaInfo;
};

}  // namespace zarvik
