#include "ExternalObject.h"

#include <algorithm>
#include <iterator>

#include "DataObjectMetaInfo.h"
#include "GuardedCast.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

/// The fields, in the order of their indexes.
enum : int { HEADER, DATA, TRAILER };

using Part = SmartPtr<DataObject>;

Part cloneOf(const Part& part) { return part.isNull() ? Part() : guardedCast<DataObject>(part->clone()); }

void appendPart(zkstringbuffer& out, const Part& part) {
  if (!part.isNull()) out.append(part->toXMLString(2));
}
}  // namespace

DataObjectMetaInfo* ExternalObject::metaInfo() {
  static const char* const names[] = {"Header", "Data", "Trailer"};
  static const char* const types[] = {"DataObject", "DataObject", "DataObject"};
  static DataObjectMetaInfo info(zkstringliteral("ExternalObject"), names, types, std::size(names));
  return &info;
}

ExternalObject::ExternalObject() : AbstractDataObject(metaInfo(), flags, nullptr) {}

ExternalObject::ExternalObject(DataObject* header, DataObject* data, DataObject* trailer) : ExternalObject() {
  setExternalObjects(header, data, trailer);
}

void ExternalObject::setExternalObjects(DataObject* newHeader, DataObject* newData, DataObject* newTrailer) {
  header = Part(newHeader);  // by way of a handle, for a part may be replaced by itself
  data = Part(newData);
  trailer = Part(newTrailer);
  std::fill(std::begin(flags), std::end(flags), true);
}

Object* ExternalObject::clone() const {
  guardedCast<DataObject>(data.get());
  return new ExternalObject(cloneOf(header).get(), cloneOf(data).get(), cloneOf(trailer).get());
}

void ExternalObject::reset() {
  for (const Part* part : {&header, &data, &trailer}) {
    if (!part->isNull()) (*part)->reset();
  }
}

zkstring ExternalObject::toXMLString() {
  guardedCast<DataObject>(data.get());
  zkstringbuffer out("<ExternalObject>\n");
  for (const Part* part : {&header, &data, &trailer}) appendPart(out, *part);
  out.append("</ExternalObject>\n");
  return out;
}

Object* ExternalObject::getField0(int index) const {
  switch (index) {
    case HEADER:
      return getHeader();
    case DATA:
      return getData();
    case TRAILER:
      return getTrailer();
    default:
      return AbstractDataObject::getField0(index);
  }
}

void ExternalObject::setField0(int index, const Object* value) {
  Part* const parts[] = {&header, &data, &trailer};
  if (index < HEADER || index > TRAILER) return AbstractDataObject::setField0(index, value);
  *parts[index] = Part(const_cast<DataObject*>(guardedCast<DataObject>(value)));
}

}  // namespace zarvik
