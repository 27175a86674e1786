#include "DataObjectMetaInfo.h"

#include <algorithm>

#include "Conversion.h"
#include "Exceptions.h"
#include "KelvaraTypes.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/DataObjectMetaInfo";

bool isSectionWord(const zkstring& type) {
  return type == KelvaraTypes::SECTION_TYPE || type == KelvaraTypes::DATAOBJECT_TYPE;
}
}  // namespace

DataObjectMetaInfo::DataObjectMetaInfo(const zkstring& name, FieldMetaInfo* const* fields, int count) : name(name) {
  for (int i = 0; i < count; ++i) {
    this->fields.emplace_back(fields[i]->clone())->setIndex(i);
  }
  indexNames();
}

DataObjectMetaInfo::DataObjectMetaInfo(const zkstring& name, const char* const* names, const char* const* types,
                                       int count)
    : DataObjectMetaInfo(name, names, types, count, {}) {}

DataObjectMetaInfo::DataObjectMetaInfo(const zkstring& name, const char* const* names, const char* const* types,
                                       int count, const std::vector<int>& synthesized)
    : name(name) {
  addTable(names, types, count, synthesized);
  indexNames();
}

DataObjectMetaInfo::DataObjectMetaInfo(const zkstring& name, DataObjectMetaInfo* parent, const char* const* names,
                                       const char* const* types, int count, const std::vector<int>& synthesized)
    : name(name) {
  for (const auto& field : parent->fields) fields.emplace_back(field->clone());
  addTable(names, types, count, synthesized);
  indexNames();
}

int DataObjectMetaInfo::getFieldIndexIfExists(const zkstring& fieldName) const {
  const FieldMetaInfo* const field = find(fieldName);
  return field != nullptr ? field->getIndex() : -1;
}

FieldMetaInfo* DataObjectMetaInfo::getFieldMetaInfo(const zkstring& fieldName) const {
  if (FieldMetaInfo* const field = find(fieldName)) return field;
  throwFrom(here, FieldNotFoundException("Field with name " + fieldName + " not defined"));
}

void DataObjectMetaInfo::throwNotDefined(int index) {
  throwFrom(here, FieldNotFoundException("Field at index " + intToString(index) + " not defined"));
}

void DataObjectMetaInfo::addTable(const char* const* names, const char* const* types, int count,
                                  const std::vector<int>& synthesized) {
  const int base = getFieldCount();
  for (int i = 0; i < count; ++i) {
    const zkstring fieldName = zkstring::static_string(names[i]);
    const zkstring type = zkstring::static_string(types[i]);
    const bool isSynthesized = std::find(synthesized.begin(), synthesized.end(), i) != synthesized.end();
    fields.emplace_back(isSectionWord(type) ? new SectionMetaInfo(fieldName, type, isSynthesized)
                                            : new FieldMetaInfo(fieldName, type, true, isSynthesized));
    fields.back()->setIndex(base + i);
  }
}

/// Also has every field compute its mangled name, so that a finished description is only read.
void DataObjectMetaInfo::indexNames() {
  for (const auto& field : fields) {
    field->getMangledName();
    byName.push_back(field.get());
  }
  std::stable_sort(byName.begin(), byName.end(),
                   [](const FieldMetaInfo* a, const FieldMetaInfo* b) { return a->getName() < b->getName(); });
}

FieldMetaInfo* DataObjectMetaInfo::find(const zkstring& fieldName) const {
  const auto place =
      std::lower_bound(byName.begin(), byName.end(), fieldName,
                       [](const FieldMetaInfo* field, const zkstring& wanted) { return field->getName() < wanted; });
  return place != byName.end() && (*place)->getName() == fieldName ? *place : nullptr;
}

}  // namespace zarvik
