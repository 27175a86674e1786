#pragma once

#include "Support.h"

namespace zarvik {

/// A record for tests: a text, a number, a group of records of the same kind (0 to 2), and a nested one.
class TestRecord : public AbstractDataObject {
 public:
  enum : int { NAME, COUNT, LEGS, INNER, FIELD_COUNT };

  explicit TestRecord(DataObjectSection* parent = nullptr) : AbstractDataObject(metaInfo(), values.flags, parent) {
    legs.initialize(this, *metaInfo()->getSectionMetaInfo(LEGS));
    inner.initialize(this, *metaInfo()->getSectionMetaInfo(INNER));
    setNotNull(LEGS);
    setNotNull(INNER);
  }
  TestRecord(const TestRecord& other, DataObjectSection* parent)
      : AbstractDataObject(other, values.flags, parent),
        values(other.values),
        legs(other.legs, this),
        inner(other.inner, this) {}

  static DataObjectMetaInfo* metaInfo() {
    static const char* const names[] = {"Name", "No of", "1st Leg", "Inner"};
    static const char* const types[] = {"String", "Integer", "Section", "DataObject"};
    struct Info : DataObjectMetaInfo {
      Info() : DataObjectMetaInfo(zkstringliteral("TestRecord"), names, types, FIELD_COUNT) {
        getSectionMetaInfo(LEGS)->init(this, 0, 2);
        getSectionMetaInfo(INNER)->init(this, 0, 1);
      }
    };
    static Info info;
    return &info;
  }

  Object* clone() const override { return new TestRecord(*this, nullptr); }
  DataObject* createSectionElement(const zkstring& sectionName, DataObjectSection* section) const override {
    return getMetaInfo()->getFieldIndexIfExists(sectionName) >= LEGS
               ? new TestRecord(section)
               : AbstractDataObject::createSectionElement(sectionName, section);
  }

  static TestRecord* named(const char* name) {
    auto* const record = new TestRecord;
    record->setField(NAME, zkstring(name));
    return record;
  }

  TestRecord* add(DataObjectSection& section, const char* name) {
    const SmartPtr<TestRecord> record(new TestRecord(&section));
    section.addElement(record.get());
    if (name != nullptr) record->setField(NAME, zkstring(name));
    return record.get();
  }

  using AbstractDataObject::setAllFieldsToNull;

  struct Values {
    bool flags[FIELD_COUNT] = {};
    zkstring name;
    int count = 0;
  };
  Values values;
  DataObjectSectionImpl legs;
  DataObjectSingleElementSectionImpl inner;

 protected:
  using AbstractDataObject::getField0;
  Object* getField0(int index, Object* reuse) const override {
    if (index == NAME) return box(values.name, reuse);
    if (index == COUNT) return box(values.count, reuse);
    if (index == LEGS) return box(legs, reuse);
    if (index == INNER) return box(inner, reuse);
    return AbstractDataObject::getField0(index, reuse);
  }
  void setField0(int index, const Object* value) override {
    if (index == NAME) return unbox(value, values.name);
    if (index == COUNT) return unbox(value, values.count);
    if (index == LEGS) return unbox(value, legs);
    AbstractDataObject::setField0(index, value);
  }
};

}  // namespace zarvik
