#pragma once

#include <memory>
#include <vector>

#include "FieldMetaInfo.h"

namespace zarvik {

/// The description of one type of record: its name and its fields in order. A field's place is its index, and the
/// index is its address in all accessors of DataObject.
///
///     const char* const names[] = {"Symbol", "Legs"};
///     const char* const types[] = {"String", "Section"};
///     static DataObjectMetaInfo order("Order", names, types, 2);
///     order.getSectionMetaInfo(1)->init(&leg, 0, -1);  // every section of a table must be completed so
///
/// It owns its fields, and lives at least as long as every record that uses it. It is built once and then read, by
/// any number of threads as long as its texts are without a block: those of the tables are (they are not copied, so
/// the tables' texts live as long as anyone may hold a name), and `name` is when it is a literal. Access by index is
/// an array look-up, by name a binary search.
class DataObjectMetaInfo : public Object {
 public:
  /// Keeps clones of the fields, numbered from 0; the fields handed in stay the caller's.
  DataObjectMetaInfo(const zkstring& name, FieldMetaInfo* const* fields, int count);

  /// From parallel tables. The type words "Section" and "DataObject" make a SectionMetaInfo, with neither element
  /// metadata nor bounds; all others make a field that is optional. A count below 1 makes none. `synthesized` lists
  /// positions in the tables.
  DataObjectMetaInfo(const zkstring& name, const char* const* names, const char* const* types, int count);
  DataObjectMetaInfo(const zkstring& name, const char* const* names, const char* const* types, int count,
                     const std::vector<int>& synthesized);
  /// With clones of the fields of `parent` before those of the tables.
  DataObjectMetaInfo(const zkstring& name, DataObjectMetaInfo* parent, const char* const* names,
                     const char* const* types, int count, const std::vector<int>& synthesized);

  DataObjectMetaInfo(const DataObjectMetaInfo&) = delete;
  DataObjectMetaInfo& operator=(const DataObjectMetaInfo&) = delete;

  const zkstring& getName() const { return name; }
  int getFieldCount() const { return static_cast<int>(fields.size()); }

  // By name: of fields with one name the first is found. Unknown names throw FieldNotFoundException.
  int getFieldIndex(const zkstring& fieldName) const { return getFieldMetaInfo(fieldName)->getIndex(); }
  int getFieldIndexIfExists(const zkstring& fieldName) const;  ///< -1 when there is none
  FieldMetaInfo* getFieldMetaInfo(const zkstring& fieldName) const;
  const zkstring& getMangledName(const zkstring& fieldName) const {
    return getFieldMetaInfo(fieldName)->getMangledName();
  }

  // By index: outside 0 to getFieldCount() - 1 they throw FieldNotFoundException.
  FieldMetaInfo* getFieldMetaInfo(int index) const {
    if (index < 0 || index >= getFieldCount()) [[unlikely]]
      throwNotDefined(index);
    return fields[static_cast<unsigned int>(index)].get();
  }
  const zkstring& getFieldName(int index) const { return getFieldMetaInfo(index)->getName(); }
  const zkstring& getFieldType(int index) const { return getFieldMetaInfo(index)->getType(); }
  const zkstring& getMangledName(int index) const { return getFieldMetaInfo(index)->getMangledName(); }
  bool isSection(int index) const { return getSectionMetaInfo(index) != nullptr; }  ///< by class, not by type word
  bool isSynthesized(int index) const { return getFieldMetaInfo(index)->isSynthesized(); }
  /// The field as a section; null when it is none.
  SectionMetaInfo* getSectionMetaInfo(int index) const {
    return dynamic_cast<SectionMetaInfo*>(getFieldMetaInfo(index));
  }

  /// The section whose elements this describes; not owned. Called by SectionMetaInfo.
  void setParentSection(SectionMetaInfo* section) { parentSection = section; }

 private:
  [[noreturn]] static void throwNotDefined(int index);
  void addTable(const char* const* names, const char* const* types, int count, const std::vector<int>& synthesized);
  void indexNames();
  FieldMetaInfo* find(const zkstring& fieldName) const;

  zkstring name;
  std::vector<std::unique_ptr<FieldMetaInfo>> fields;
  std::vector<FieldMetaInfo*> byName;  ///< sorted by name; of equal names the first field stands first
  SectionMetaInfo* parentSection = nullptr;
};

}  // namespace zarvik
