#pragma once

#include <algorithm>
#include <vector>

#include "AbstractDataObject.h"
#include "Boxing.h"
#include "DataObjectMetaInfo.h"
#include "DataObjectSectionImpl.h"

namespace zarvik {

inline constexpr int valueCount = 20;  // ten texts, then ten numbers

/// A record of twenty fields and a group of records of the same kind.
class Wide : public AbstractDataObject {
 public:
  static constexpr int GROUP = valueCount;
  static constexpr int FIELD_COUNT = valueCount + 1;

  explicit Wide(DataObjectSection* parent = nullptr) : AbstractDataObject(metaInfo(), flags, parent) {
    group.initialize(this, *metaInfo()->getSectionMetaInfo(GROUP));
    setNotNull(GROUP);
  }

  static DataObjectMetaInfo* metaInfo() {
    static const char* const names[] = {"ClOrdID",  "Account",   "Symbol",   "SecurityID", "Exchange",  "Currency",
                                        "Trader",   "Desk",      "ClientID", "Text",       "OrderQty",  "MinQty",
                                        "MaxFloor", "LeavesQty", "CumQty",   "SeqNum",     "ExecCount", "LegCount",
                                        "PartyNo",  "Version",   "Elements"};
    static const std::vector<const char*> types = [] {
      std::vector<const char*> words(FIELD_COUNT, "String");
      std::fill(words.begin() + valueCount / 2, words.end() - 1, "Integer");
      words.back() = "Section";
      return words;
    }();
    struct Info : DataObjectMetaInfo {
      Info() : DataObjectMetaInfo(zkstringliteral("Wide"), names, types.data(), FIELD_COUNT) {
        getSectionMetaInfo(GROUP)->init(this, 0, -1);
      }
    };
    static Info info;
    return &info;
  }
  DataObject* createSectionElement(const zkstring& /*name*/, DataObjectSection* section) const override {
    return new Wide(section);
  }

  void fill(int fields) {
    for (int i = 0; i < fields; ++i) setText(i);
    for (int i = valueCount / 2; i < valueCount / 2 + fields; ++i) setNumber(i);
  }
  void setText(int i) {
    texts[i] = zkstringliteral("a value of text");
    setNotNull(i);
  }
  void setNumber(int i) {
    numbers[i - valueCount / 2] = 12345 + i;
    setNotNull(i);
  }
  void addElements(int count) {
    for (int i = 0; i < count; ++i) {
      auto* const element = new Wide(&group);
      group.addElement(element);
      element->fill(2);
    }
  }
  bool flags[FIELD_COUNT] = {};
  zkstring texts[valueCount / 2];
  int numbers[valueCount / 2] = {};
  DataObjectSectionImpl group;

 protected:
  using AbstractDataObject::getField0;
  Object* getField0(int index, Object* reuse) const override {
    if (index < valueCount / 2) return box(texts[index], reuse);
    if (index < valueCount) return box(numbers[index - valueCount / 2], reuse);
    return box(group, reuse);
  }
  void setField0(int index, const Object* value) override {
    if (index < valueCount / 2) return unbox(value, texts[index]);
    if (index < valueCount) return unbox(value, numbers[index - valueCount / 2]);
    unbox(value, group);
  }
};

/// A record with all its values, and so many elements with four each.
inline SmartPtr<Wide> wide(int elements) {
  SmartPtr<Wide> record(new Wide);
  record->fill(valueCount / 2);
  record->addElements(elements);
  return record;
}

}  // namespace zarvik
