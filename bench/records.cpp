// Records against the least that their work can cost: a member read through one virtual call, a look-up in a map, and
// the same XML text put together by hand.
#include <algorithm>
#include <charconv>
#include <map>
#include <string>
#include <vector>

#include "support/Subject.h"
#include "support/Wide.h"

using namespace zarvik;

namespace {

/// The least that a look through an interface costs; two classes, so that no compiler knows which one is called.
struct Reader {
  virtual int read() const = 0;
  int number = 12345;

 protected:
  ~Reader() = default;
};
struct PlainReader : Reader {
  int read() const override { return number; }
};
struct NegativeReader : Reader {
  int read() const override { return -number; }
};

/// The tags of one field, as a hand would write them into its code.
struct Tags {
  std::string begin;
  std::string end;
};
const Tags& tagsOf(int field) {
  static const std::vector<Tags> all = [] {
    std::vector<Tags> tags;
    for (int i = 0; i < Wide::FIELD_COUNT; ++i) {
      const std::string name = Wide::metaInfo()->getFieldName(i).c_str();
      tags.push_back({"<" + name + ">", "</" + name + ">\n"});
    }
    return tags;
  }();
  return all[static_cast<std::size_t>(field)];
}

void appendEscapedByHand(std::string& out, const char* text, std::size_t length) {
  const auto isPlain = [](char c) { return c >= ' ' && c != '<' && c != '>' && c != '&'; };
  if (!std::all_of(text, text + length, isPlain)) std::abort();  // here would stand the escapes
  out.append(text, length);
}

/// The text of a record as one would write it who knows its class: two appends a tag, one a value.
void appendByHand(std::string& out, const Wide& record, std::size_t level) {
  for (int i = 0; i < valueCount; ++i) {
    if (!record.flags[i]) continue;
    const Tags& tags = tagsOf(i);
    out.append(level, '\t').append(tags.begin);
    if (i < valueCount / 2) {
      appendEscapedByHand(out, record.texts[i].data(), record.texts[i].length());
    } else {
      char digits[12];
      out.append(digits, std::to_chars(digits, digits + sizeof digits, record.numbers[i - valueCount / 2]).ptr);
    }
    out.append(tags.end);
  }
  const Tags& tags = tagsOf(Wide::GROUP);
  for (int i = 0; i < record.group.getElementCount(); ++i) {
    out.append(level, '\t').append(tags.begin).append(1, '\n');
    appendByHand(out, static_cast<const Wide&>(*record.group.getElement(i)), level + 1);
    out.append(level, '\t').append(tags.end);
  }
}

std::string byHand(const Wide& record) {
  std::string out = "<DataObject>\n";
  appendByHand(out, record, 1);
  return out + "</DataObject>\n";
}

void reads() {
  static const SmartPtr<Wide> record = wide(0);
  static const DataObject* generic = record.get();
  static PlainReader plain;
  static NegativeReader negative;
  static const Reader* known = valueCount == record->getFieldCount() ? static_cast<Reader*>(&negative) : &plain;
  static IntObject number;
  static zkstringliteral name("LeavesQty");
  static const std::map<std::string, int> map = [] {
    std::map<std::string, int> indexes;
    for (int i = 0; i < valueCount; ++i) indexes[Wide::metaInfo()->getFieldName(i).data()] = i;
    return indexes;
  }();
  static const std::string standardName = "LeavesQty";
  measure("field by index into a box", ours, [] {
    benchmark::DoNotOptimize(generic);
    return generic->getField(valueCount / 2, number);
  });
  measure("field by index into a box", "member through a virtual call", [] {
    benchmark::DoNotOptimize(known);
    return known->read();
  });
  measure("field by name into a box", ours, [] {
    benchmark::DoNotOptimize(generic);
    return generic->getField(name, number);
  });
  measure("field by name into a box", "std::map::find", [] { return map.find(standardName)->second; });
}

void texts() {
  static std::vector<SmartPtr<Wide>> records;  // alive as long as the benchmarks are
  for (const int elements : {10, 1000, 100000, 1000000}) {
    const std::string subject = "XML text, 20 fields and a group of " + std::to_string(elements);
    Wide* const record = records.emplace_back(wide(elements)).get();
    if (byHand(*record) != record->toXMLString().c_str()) std::abort();
    measure(subject, ours, [record] { return record->toXMLString(); });
    measure(subject, "appends by hand", [record] { return byHand(*record); });
  }
}

[[maybe_unused]] const bool registered = (reads(), texts(), true);
}  // namespace
