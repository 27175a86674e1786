#pragma once

#include "DataObject.h"

namespace zarvik {

/// What can be said of records in terms of a few operations: a class below this supplies those that are still pure.
class DataObjectBase : public DataObject {
 public:
  using DataObject::getField;
  using DataObject::isNull;
  using DataObject::setField;
  using DataObject::setNull;

  DataObjectSection* getSection(int index) const override;
  DataObjectSection* getSection(const zkstring& name) const override;
  bool getField(const zkstring& name, Object& target) const override;
  Object* getField(const zkstring& name) const override;
  Object* getFieldCheckNull(int index) const override;
  SmartPtr<Object> getFieldVal(int index) override;
  SmartPtr<Object> getFieldVal(const zkstring& name) override;
  SmartPtr<Object> getFieldCheckNullVal(int index) override;
  bool isNull(const zkstring& name) const override;
  void setNull(const zkstring& name) override;
  void setField(int index, const Object& value) override;
  void setField(const zkstring& name, const Object& value) override;
  void setField(const zkstring& name, const Object* value) override;
  int getFieldIndex(const zkstring& name) const override;
  const zkstring& getFieldType(const zkstring& name) const override;
  const zkstring& getFieldType(int index) const override;
  const zkstring& getFieldName(int index) const override;
  zkstring getQualifiedName(int index) override;
  int getFieldCount() const override;
  zkstring toXMLString() override;
  zkstring toXMLString(int level) override;
  DataObject* getRootDataObject() const override;
  void read(std::istream& in) override;          ///< does nothing
  void write(std::ostream& out) const override;  ///< does nothing
  zkstring toString() const override;            ///< "name=value" of all fields, joined by ", "

  /// Text fields: the text goes through a StringObject. `getField` leaves `text` as it is for null.
  bool getField(int index, zkstring& text) const;
  void setField(int index, const zkstring& text);
  void setField(const zkstring& name, const zkstring& text);

  const zkstring& getMangledName(int index) const;  ///< the name as an XML tag
  const zkstring& getMangledName(const zkstring& name) const;

  /// Makes `target` a deep copy of `source`, a record whose fields are the same by index; null state too.
  static void copy(const DataObject* source, DataObject* target);

  virtual zkstring getRootXMLTag();  ///< "DataObject"
  /// A new element for the section of that name, with `section` as its parent, not yet added to it. Null here.
  virtual DataObject* createSectionElement(const zkstring& sectionName, DataObjectSection* section) const;

 protected:
  /// The fields without a root tag, at `level` tabs.
  virtual zkstring toXMLStringImpl(int level);

  /// How an error names the field: by its qualified name, or failing that by what is left of "at index " behind its
  /// first `index` characters, odd on purpose.
  zkstring nameForError(int index) const;

 private:
  zkstring withinRootTag(int level);  ///< the fields at `level`, the tag at one less
};

}  // namespace zarvik
