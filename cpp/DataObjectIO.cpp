#include "DataObjectIO.h"

#include <algorithm>
#include <type_traits>

#include "Boxing.h"
#include "DataObject.h"
#include "DataObjectMetaInfo.h"
#include "DataObjectSection.h"
#include "Exceptions.h"
#include "KelvaraTypes.h"
#include "Parsing.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/DataObjectIO";

constexpr int deepest = 1000;  ///< levels of records within records: each takes room on the stack

template <class T>
void writeBigEndian(ByteBuffer& buffer, T value) {
  char bytes[sizeof(T)];
  for (unsigned int i = 0; i < sizeof(T); ++i) bytes[i] = static_cast<char>(value >> (8 * (sizeof(T) - 1 - i)));
  buffer.append(bytes, sizeof(T));
}

template <class T>
T readBigEndian(ByteBuffer& buffer) {
  const char* const bytes = buffer.take(sizeof(T));
  std::make_unsigned_t<T> value = 0;
  for (unsigned int i = 0; i < sizeof(T); ++i) value = value << 8 | static_cast<unsigned char>(bytes[i]);
  return static_cast<T>(value);
}

int readPart(ByteBuffer& buffer) { return static_cast<int>(DataObjectIO::readFastUnsignedInt(buffer)); }
void writePart(ByteBuffer& buffer, int part) {
  DataObjectIO::writeFastUnsignedInt(buffer, static_cast<unsigned int>(part));
}

char readCharacter(ByteBuffer& buffer) { return static_cast<char>(DataObjectIO::readFastUnsignedInt(buffer)); }
void writeCharacter(ByteBuffer& buffer, char c) { writePart(buffer, static_cast<signed char>(c)); }

template <bool date, bool time>
DateTime readDate(ByteBuffer& buffer) {
  return DataObjectIO::readCompactDateTime(buffer, date, time);
}
template <bool date, bool time>
void writeDate(ByteBuffer& buffer, const DateTime& value) {
  DataObjectIO::writeCompactDateTime(buffer, value, date, time);
}

/// Whether all bytes are below 128, so that each takes one byte.
bool isPlain(const char* bytes, unsigned int length) {
  unsigned char all = 0;
  for (unsigned int i = 0; i < length; ++i) all |= static_cast<unsigned char>(bytes[i]);
  return all < 128;
}

void writeTag(ByteBuffer& buffer, int index) { writePart(buffer, index + 1); }

/// Puts the field into `box`; false when it cannot be put there, though `getField` may still give it: a class need not
/// have the form of `getField0` that fills a box.
bool fills(const DataObject& object, int index, Object& box, bool& isNull) {
  try {
    isNull = !object.getField(index, box);
    return true;
  } catch (const Exception&) {
    return false;
  }
}

/// How the values of a type word are written and read.
struct Form {
  const zkstring& word;
  void (*write)(ByteBuffer& buffer, const Object& value);
  bool (*writeEntry)(ByteBuffer& buffer, const DataObject& object, int index);  ///< false: must be written as a value
  void (*readSet)(ByteBuffer& buffer, DataObject& object, int index);
};

template <class T, auto read, auto write>
constexpr Form form(const zkstring& word) {
  using Box = typename Boxing<T>::Box;
  return {word, [](ByteBuffer& buffer, const Object& value) { write(buffer, (value.*Boxing<T>::get)()); },
          [](ByteBuffer& buffer, const DataObject& object, int index) {
            Box box;
            bool isNull = false;
            if (!fills(object, index, box, isNull)) return false;
            if (isNull) return true;
            writeTag(buffer, index);
            write(buffer, box.getValue());
            return true;
          },
          [](ByteBuffer& buffer, DataObject& object, int index) {
            const Box box(read(buffer));
            object.setField(index, static_cast<const Object&>(box));
          }};
}

/// The most frequent ones first. All other words travel as texts.
using IO = DataObjectIO;
constexpr Form forms[] = {
    form<zkstring, IO::readString, IO::writeString>(KelvaraTypes::STRING_TYPE),
    form<int, IO::readIntBigEndian, IO::writeIntBigEndian>(KelvaraTypes::INT_TYPE),
    form<double, IO::readDoubleBigEndian, IO::writeDoubleBigEndian>(KelvaraTypes::DOUBLE_TYPE),
    form<DateTime, readDate<true, true>, writeDate<true, true>>(KelvaraTypes::DATE_TIME_TYPE),
    form<DateTime, readDate<true, false>, writeDate<true, false>>(KelvaraTypes::DATE_ONLY_TYPE),
    form<DateTime, readDate<false, true>, writeDate<false, true>>(KelvaraTypes::TIME_ONLY_TYPE),
    form<char, readCharacter, writeCharacter>(KelvaraTypes::CHAR_TYPE),
    form<__int64, IO::readLongBigEndian, IO::writeLongBigEndian>(KelvaraTypes::LONG_TYPE),
    form<float, IO::readFloatBigEndian, IO::writeFloatBigEndian>(KelvaraTypes::FLOAT_TYPE),
};

const Form* formOf(const zkstring& type) {
  const Form* const found =
      std::find_if(std::begin(forms), std::end(forms), [&type](const Form& form) { return form.word == type; });
  return found != std::end(forms) ? found : nullptr;
}

void writeSection(ByteBuffer& buffer, int index, const DataObjectSection* section) {
  const int count = section != nullptr ? section->getElementCount() : 0;
  if (count < 1) return;
  writeTag(buffer, index);
  writePart(buffer, count);
  for (int i = 0; i < count; ++i) DataObjectIO::write(section->getElement(i), buffer);
}

/// An entry of whatever the record gives for the field.
void writeValue(ByteBuffer& buffer, const DataObject& object, int index, const zkstring& type) {
  const SmartPtr<Object> value(object.getField(index));
  if (value.isNull()) return;
  if (const SectionObject* const section = SectionObject::of(value.get())) {
    writeSection(buffer, index, section->getSection());
  } else if (const auto* const nested = dynamic_cast<const DataObject*>(value.get())) {
    writeTag(buffer, index);
    DataObjectIO::write(nested, buffer);
  } else {
    writeTag(buffer, index);
    DataObjectIO::writeField(buffer, value.get(), type);
  }
}

void readRecord(DataObject& object, ByteBuffer& buffer, int level);

void readSection(DataObjectSection& section, ByteBuffer& buffer, int level) {
  const unsigned int count = DataObjectIO::readFastUnsignedInt(buffer);
  buffer.require(count);  // an element takes a byte at least
  section.clear();
  for (unsigned int i = 0; i < count; ++i) {
    const SmartPtr<DataObject> element(section.createElement());
    section.addElement(element.get());
    readRecord(*element, buffer, level);
  }
}

/// A nested object is read as it was written: as a record, or as a section of one element where the record gives that.
void readNested(DataObject& object, int index, ByteBuffer& buffer, int level) {
  const SmartPtr<Object> value(object.getField(index));
  if (value.isNull()) return;
  if (const SectionObject* const section = SectionObject::of(value.get())) {
    readSection(*section->getSection(), buffer, level);
  } else if (auto* const nested = dynamic_cast<DataObject*>(value.get())) {
    nested->reset();
    readRecord(*nested, buffer, level);
  }
}

void readRecord(DataObject& object, ByteBuffer& buffer, int level) {
  if (level == deepest) buffer.require(~0U);
  const DataObjectMetaInfo& described = *object.getMetaInfo();
  while (const unsigned int tag = DataObjectIO::readFastUnsignedInt(buffer)) {
    const auto index = static_cast<int>(tag - 1);
    const zkstring& type = described.getFieldType(index);
    if (type == KelvaraTypes::SECTION_TYPE) {
      readSection(*object.getSection(index), buffer, level + 1);
    } else if (type == KelvaraTypes::DATAOBJECT_TYPE) {
      readNested(object, index, buffer, level + 1);
    } else {
      DataObjectIO::readSetField(&object, index, buffer, type);
    }
  }
}
}  // namespace

Binary DataObjectIO::serialize(const DataObject* object) {
  ByteBuffer buffer(16);
  write(object, buffer);
  return Binary(buffer.str(), static_cast<unsigned int>(buffer.length()));
}

void DataObjectIO::write(const DataObject* object, ByteBuffer& buffer) {
  const DataObjectMetaInfo& described = *object->getMetaInfo();
  const int count = described.getFieldCount();
  for (int i = 0; i < count; ++i) {
    if (object->isNull(i)) continue;
    const zkstring& type = described.getFieldType(i);
    const Form* const form = formOf(type);
    if (form == nullptr || !form->writeEntry(buffer, *object, i)) writeValue(buffer, *object, i, type);
  }
  buffer.write(0);
}

void DataObjectIO::writeField(ByteBuffer& buffer, Object* value, const zkstring& type) {
  if (const Form* const form = formOf(type)) {
    form->write(buffer, *value);
  } else {
    writeString(buffer, Parsing::runtimeObjectToString(value, type));
  }
}

void DataObjectIO::parse(DataObject* object, const Binary& bytes) {
  parse(object, bytes.data(), static_cast<int>(bytes.length()));
}

void DataObjectIO::parse(DataObject* object, const char* bytes, int length) {
  ByteBuffer buffer(bytes, length);
  read(object, buffer);
  if (buffer.hasMore()) throwFrom(here, TransformException("Unexpected characters at the end of serialzied message"));
}

void DataObjectIO::read(DataObject* object, ByteBuffer& buffer) { readRecord(*object, buffer, 0); }

void DataObjectIO::readSetField(DataObject* object, int index, ByteBuffer& buffer, const zkstring& type) {
  if (const Form* const form = formOf(type)) return form->readSet(buffer, *object, index);
  const SmartPtr<Object> value(Parsing::toRuntimeObject(readString(buffer), type));
  object->setField(index, static_cast<const Object*>(value.get()));
}

int DataObjectIO::readIntBigEndian(ByteBuffer& buffer) { return readBigEndian<int>(buffer); }
void DataObjectIO::writeIntBigEndian(ByteBuffer& buffer, int value) { writeBigEndian(buffer, value); }
__int64 DataObjectIO::readLongBigEndian(ByteBuffer& buffer) { return readBigEndian<__int64>(buffer); }
void DataObjectIO::writeLongBigEndian(ByteBuffer& buffer, __int64 value) { writeBigEndian(buffer, value); }

float DataObjectIO::readFloatBigEndian(ByteBuffer& buffer) {
  return ByteBuffer::intBitsToFloat(readIntBigEndian(buffer));
}
void DataObjectIO::writeFloatBigEndian(ByteBuffer& buffer, float value) {
  writeIntBigEndian(buffer, ByteBuffer::floatToIntBits(value));
}
double DataObjectIO::readDoubleBigEndian(ByteBuffer& buffer) {
  return ByteBuffer::longBitsToDouble(readLongBigEndian(buffer));
}
void DataObjectIO::writeDoubleBigEndian(ByteBuffer& buffer, double value) {
  writeLongBigEndian(buffer, ByteBuffer::doubleToLongBits(value));
}

unsigned int DataObjectIO::readFastUnsignedInt(ByteBuffer& buffer) {
  unsigned int value = 0;
  for (unsigned int shift = 0;; shift += 7) {
    const auto group = static_cast<unsigned int>(buffer.read());
    value |= clearHighBitLS(group, shift);
    if ((group & 128) == 0) return value;
  }
}

void DataObjectIO::writeFastUnsignedInt(ByteBuffer& buffer, unsigned int value) {
  for (; value > 127; value >>= 7) buffer.write(static_cast<int>(setHighBit(value)));
  buffer.write(static_cast<int>(value));
}

zkstring DataObjectIO::readString(ByteBuffer& buffer) {
  const unsigned int length = readFastUnsignedInt(buffer);
  buffer.require(length);
  if (isPlain(buffer.str() + buffer.getPosition(), length)) return zkstring(buffer.take(length), length);
  zkstring text;
  char* const bytes = text.getBuffer(static_cast<int>(length));
  std::generate_n(bytes, length, [&buffer] { return readCharacter(buffer); });
  text.setBufferLength(static_cast<int>(length));
  return text;
}

void DataObjectIO::writeString(ByteBuffer& buffer, const zkstring& text) {
  writeFastUnsignedInt(buffer, text.length());
  if (isPlain(text.data(), text.length())) return buffer.append(text);
  for (unsigned int i = 0; i < text.length(); ++i) writeCharacter(buffer, text[i]);
}

DateTime DataObjectIO::readCompactDateTime(ByteBuffer& buffer, bool date, bool time) {
  int parts[] = {1970, 1, 1, 0, 0, 0, 0};
  if (date) std::generate_n(parts, 3, [&buffer] { return readPart(buffer); });
  if (time) std::generate_n(parts + 3, 4, [&buffer] { return readPart(buffer); });
  return DateTime(parts[0], parts[1], parts[2], parts[3], parts[4], parts[5], parts[6]);
}

void DataObjectIO::writeCompactDateTime(ByteBuffer& buffer, const DateTime& value, bool date, bool time) {
  if (date) {
    for (const int part : {value.getYear(), value.getMonth(), value.getDate()}) writePart(buffer, part);
  }
  if (time) {
    for (const int part : {value.getHours(), value.getMinutes(), value.getSeconds(), value.getMilliSeconds()})
      writePart(buffer, part);
  }
}

}  // namespace zarvik
