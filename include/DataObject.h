#pragma once

#include <iosfwd>

#include "Object.h"
#include "SmartPtr.h"

namespace zarvik {

class DataObjectMetaInfo;
class DataObjectSection;

/// A structured record: a message, a header, an element of a repeating group, an error.
///
/// The one interface by which everything generic sees records: fields by index (the fast path) or by name (one
/// look-up more), null state, sections, names, texts. What the indexes mean stands in `getMetaInfo()`. Records are
/// counted and belong to one thread at a time. Derive from AbstractDataObject rather than from here.
///
/// Names that are unknown throw FieldNotFoundException. Indexes are those of the metadata; how far they are checked
/// is the class's affair.
class DataObject : public ObjectRef {
 public:
  /// The repeating group or nested object at the field, which stays its owner's. Throws ClassCastException for a
  /// field that is none.
  virtual DataObjectSection* getSection(int index) const = 0;
  virtual DataObjectSection* getSection(const zkstring& name) const = 0;

  /// Puts the value into `target` by the setter of the field's kind; false, with `target` untouched, for null.
  virtual bool getField(int index, Object& target) const = 0;
  /// The value, null for null. A boxed value is the caller's to release; a nested object stays its owner's, so hold
  /// either in a SmartPtr, which is right for both.
  virtual Object* getField(int index) const = 0;
  virtual bool getField(const zkstring& name, Object& target) const = 0;
  virtual Object* getField(const zkstring& name) const = 0;
  virtual Object* getFieldCheckNull(int index) const = 0;  ///< throws TransformNullValueException for null
  virtual SmartPtr<Object> getFieldVal(int index) = 0;
  virtual SmartPtr<Object> getFieldVal(const zkstring& name) = 0;
  virtual SmartPtr<Object> getFieldCheckNullVal(int index) = 0;

  virtual bool isNull(const zkstring& name) const = 0;
  virtual bool isNull(int index) const = 0;
  virtual void setNull(const zkstring& name) = 0;
  virtual void setNull(int index) = 0;

  /// Store the value, read by the getter of the field's kind; a null pointer makes the field null.
  virtual void setField(int index, const Object& value) = 0;
  virtual void setField(int index, const Object* value) = 0;
  virtual void setField(const zkstring& name, const Object& value) = 0;
  virtual void setField(const zkstring& name, const Object* value) = 0;

  virtual int getFieldIndex(const zkstring& name) const = 0;
  virtual const zkstring& getFieldType(const zkstring& name) const = 0;
  virtual const zkstring& getFieldType(int index) const = 0;
  virtual const zkstring& getFieldName(int index) const = 0;
  /// The field's name behind those of the sections above it, such as "Legs.Parties.ID", without positions.
  virtual zkstring getQualifiedName(int index) = 0;
  virtual int getFieldCount() const = 0;

  virtual DataObjectSection* getParentSection() const = 0;  ///< not owned; null for a root
  virtual void setParentSection(DataObjectSection* section) = 0;

  /// The record as XML text: fields that are not null, one a line, groups indented by tabs.
  virtual zkstring toXMLString() = 0;
  /// The same with the fields at `level` tabs, within the root tag at one less; an element of a section has no root
  /// tag.
  virtual zkstring toXMLString(int level) = 0;

  virtual DataObject* getRootDataObject() const = 0;  ///< the outermost record, perhaps itself
  virtual bool isEmpty() const = 0;  ///< whether no field has a value, but for sections that are themselves empty
  virtual DataObjectMetaInfo* getMetaInfo() const = 0;
  virtual void read(std::istream& in) = 0;
  virtual void write(std::ostream& out) const = 0;
  virtual void reset() = 0;  ///< makes every field null and every section empty, for the next message
};

}  // namespace zarvik
