#include "FieldMetaInfo.h"

#include "DataObjectMetaInfo.h"
#include "Exceptions.h"
#include "KelvaraTypes.h"
#include "Parsing.h"
#include "ThrowFrom.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/FieldMetaInfo";

constexpr bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; }
constexpr bool isLetterOrDigit(char c) { return isLetter(c) || (c >= '0' && c <= '9'); }
}  // namespace

FieldMetaInfo::FieldMetaInfo(const zkstring& name, const zkstring& type, bool optional, bool synthesized)
    : name(name), type(type), optional(optional), synthesized(synthesized), storedForm(Parsing::hasStoredForm(type)) {}

FieldMetaInfo::FieldMetaInfo(const FieldMetaInfo& other)
    : Object(),
      name(other.name),
      type(other.type),
      optional(other.optional),
      synthesized(other.synthesized),
      storedForm(other.storedForm),
      index(other.index) {}

void FieldMetaInfo::setIndex(int position) {
  if (position == -1) throwFrom(here, TransformRuntimeException("Index fo the field " + name + " is already set"));
  index = position;
}

void FieldMetaInfo::mangle() const {
  const zkstring computed = computeMangledName(name);
  mangledName = computed == name ? name : computed;  // the name itself may be a literal, free for all threads
  tag = XMLTag(mangledName);
}

zkstring FieldMetaInfo::computeMangledName(const zkstring& name) {
  zkstringbuffer mangled;
  if (!name.empty() && !isLetter(name[0])) mangled.append('F');
  for (unsigned int i = 0; i < name.length(); ++i) mangled.append(isLetterOrDigit(name[i]) ? name[i] : '_');
  return mangled;
}

FieldMetaInfo* FieldMetaInfo::clone() const { return new FieldMetaInfo(*this); }

SectionMetaInfo::SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name)
    : FieldMetaInfo(name, KelvaraTypes::SECTION_TYPE, false) {
  init(element, 0, -1);
}

SectionMetaInfo::SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name, int minOccurs, int maxOccurs,
                                 bool synthesized)
    : SectionMetaInfo(element, name, KelvaraTypes::SECTION_TYPE, minOccurs, maxOccurs, synthesized) {}

SectionMetaInfo::SectionMetaInfo(DataObjectMetaInfo* element, const zkstring& name, const zkstring& type, int minOccurs,
                                 int maxOccurs, bool synthesized)
    : FieldMetaInfo(name, type, minOccurs > 0, synthesized) {
  init(element, minOccurs, maxOccurs);
}

SectionMetaInfo::SectionMetaInfo(const zkstring& name, const zkstring& type, bool synthesized)
    : FieldMetaInfo(name, type, false, synthesized) {}

SectionMetaInfo::SectionMetaInfo(const SectionMetaInfo& other) : FieldMetaInfo(other) {
  init(other.dataObjectMetaInfo, other.minOccurs, other.maxOccurs);
}

SectionMetaInfo& SectionMetaInfo::operator=(const SectionMetaInfo& other) {
  FieldMetaInfo::operator=(other);
  init(other.dataObjectMetaInfo, other.minOccurs, other.maxOccurs);
  return *this;
}

void SectionMetaInfo::init(DataObjectMetaInfo* element, int least, int greatest) {
  dataObjectMetaInfo = element;
  minOccurs = least;
  maxOccurs = greatest;
  if (element != nullptr) element->setParentSection(this);
}

SectionMetaInfo* SectionMetaInfo::clone() const { return new SectionMetaInfo(*this); }

}  // namespace zarvik
