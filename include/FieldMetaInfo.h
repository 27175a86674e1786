#pragma once

#include "Object.h"
#include "XMLTag.h"

namespace zarvik {

class DataObjectMetaInfo;

/// What is known of one field of a record: its name, its type word and its index.
///
/// Built once, with the record's DataObjectMetaInfo, and only read from then on. Texts without a block of their own
/// (literals, and all that the table constructors of DataObjectMetaInfo hold) may be read and copied by all threads.
class FieldMetaInfo : public Object {
 public:
  /// `name` may hold any character; `type` is a word of KelvaraTypes, or any other. The index is -1 until `setIndex`.
  FieldMetaInfo(const zkstring& name, const zkstring& type, bool optional, bool synthesized = false);
  FieldMetaInfo(const FieldMetaInfo& other);  ///< without the mangled name, which is computed anew
  FieldMetaInfo& operator=(const FieldMetaInfo& other) = default;

  const zkstring& getName() const { return name; }
  const zkstring& getType() const { return type; }
  /// Whether the stored form of a value of this type differs from its `toString`: that of dates and bytes.
  bool hasStoredForm() const { return storedForm; }
  bool isOptional() const { return optional; }  ///< odd on purpose: see SectionMetaInfo
  /// Whether the field serves the format's own machinery and is no part of the message proper.
  bool isSynthesized() const { return synthesized; }
  int getIndex() const { return index; }
  /// Moves the field to any index but -1, for which it throws TransformRuntimeException.
  void setIndex(int position);

  /// The name as an XML tag and an identifier. Computed by the first call, which a DataObjectMetaInfo makes for all
  /// its fields.
  const zkstring& getMangledName() const {
    if (mangledName.empty() && !name.empty()) [[unlikely]]
      mangle();
    return mangledName;
  }
  const XMLTag& getXMLTag() const {  ///< of the mangled name
    getMangledName();
    return tag;
  }
  /// `name` with "_" for all but letters, digits and "_", and "F" before what does not begin with a letter or "_":
  /// "1st Leg" gives "F1st_Leg".
  static zkstring computeMangledName(const zkstring& name);

  FieldMetaInfo* clone() const override;

 private:
  void mangle() const;

  zkstring name;
  zkstring type;
  bool optional;
  bool synthesized;
  bool storedForm;
  int index = -1;
  mutable zkstring mangledName;
  mutable XMLTag tag;
};

/// A field that is a repeating group, or a nested object, which is a group of at most one element.
///
/// The metadata of its elements is not owned; it is told of its section, and of the newest one: of a section and its
/// copies the copy made last is the parent. The constructors that take bounds set `optional` when at least one
/// element is asked for, which is the opposite of what the word says; nothing decides by it.
class SectionMetaInfo : public FieldMetaInfo {
 public:
  SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name);  ///< any number of elements
  /// `maxOccurs` -1 stands for any number.
  SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name, int minOccurs, int maxOccurs,
                  bool synthesized = false);
  SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name, const zkstring& type, int minOccurs, int maxOccurs,
                  bool synthesized);
  SectionMetaInfo(const SectionMetaInfo& other);
  SectionMetaInfo& operator=(const SectionMetaInfo& other);

  /// Completes a section that a table of fields made; must have run before the first element is created.
  void init(DataObjectMetaInfo* element, int minOccurs, int maxOccurs);

  DataObjectMetaInfo* getDataObjectMetaInfo() const { return dataObjectMetaInfo; }
  int getMinOccurs() const { return minOccurs; }
  int getMaxOccurs() const { return maxOccurs; }

  SectionMetaInfo* clone() const override;

 private:
  friend class DataObjectMetaInfo;
  SectionMetaInfo(const zkstring& name, const zkstring& type, bool synthesized);  ///< as tables make them

  int minOccurs = 0;
  int maxOccurs = -1;
  DataObjectMetaInfo* dataObjectMetaInfo = nullptr;
};

}  // namespace zarvik
