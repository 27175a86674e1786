#pragma once

#include "ByteBuffer.h"
#include "date/DateTime.h"

namespace zarvik {

class DataObject;
class Object;

/// The compact byte form of records: how one stage of a deployment hands a record to another without a wire format.
///
///     const Binary bytes = DataObjectIO::serialize(order);
///     SmartPtr<DataObject> copy(new Order);
///     DataObjectIO::parse(copy.get(), bytes);
///
/// The form holds values alone, no names and no types: it is read into a record of the type that was written. Null
/// fields and empty sections cost nothing, every other field a byte of tag (two from the 128th field on). Writing takes
/// one growing buffer; reading allocates what the record keeps, and never more than its classes make of as many bytes
/// as there are.
///
/// A record is a sequence of entries in the order of the fields, closed by a byte 0. An entry is the field's index
/// plus 1, as a number below, and the content that the type word asks for: "Integer" and "Float" four bytes, "Long" and
/// "Double" eight, dates and times a number for each part, "Character" a number, a section the count of its elements
/// and then each as a record, a nested object a record, and all else a text: that of Parsing::runtimeObjectToString,
/// which Parsing::toRuntimeObject must be able to read. It does not read "ISODateTime", "ISODate", "ISOTime" and
/// "RawMessage", so a record with such a value is written but not read.
///
/// Bytes that end too early throw TransformException "Out of bounds", a tag beyond the record FieldNotFoundException;
/// fields, dates and texts that do not fit throw what the record, DateTime and Parsing throw. The record then holds
/// what was read up to there.
class DataObjectIO {
 public:
  static Binary serialize(const DataObject* object);

  /// Appends the record. A field without a value that does not say so (`isNull`) is left out. Values that are not of
  /// the kind of their type word are conversion failures.
  static void write(const DataObject* object, ByteBuffer& buffer);

  /// Appends the content of a field that is neither a section nor a nested object, without a tag.
  static void writeField(ByteBuffer& buffer, Object* value, const zkstring& type);

  /// Reads a record that takes all of the bytes; TransformException tells of more. Sections are cleared and filled
  /// anew; a field without an entry, and a section too, keeps what it has.
  static void parse(DataObject* object, const Binary& bytes);
  static void parse(DataObject* object, const char* bytes, int length);

  /// Reads a record from the buffer, which is then at the byte behind it. Records nested deeper than a thousand levels
  /// are "Out of bounds". Odd on purpose: a nested object that the record does not hold in advance is not read, and
  /// the place is lost.
  static void read(DataObject* object, ByteBuffer& buffer);

  /// Reads the content of a field that is neither a section nor a nested object, and sets the field to it.
  static void readSetField(DataObject* object, int index, ByteBuffer& buffer, const zkstring& type);

  static int readIntBigEndian(ByteBuffer& buffer);
  static void writeIntBigEndian(ByteBuffer& buffer, int value);
  static __int64 readLongBigEndian(ByteBuffer& buffer);
  static void writeLongBigEndian(ByteBuffer& buffer, __int64 value);
  static float readFloatBigEndian(ByteBuffer& buffer);  ///< the bits as they are, of not-a-number too
  static void writeFloatBigEndian(ByteBuffer& buffer, float value);
  static double readDoubleBigEndian(ByteBuffer& buffer);
  static void writeDoubleBigEndian(ByteBuffer& buffer, double value);

  /// A number as groups of seven bits, the lowest first, each but the last with its high bit set: one byte to 127,
  /// five bytes from 2^28 on. Reading wraps at 32 bits whatever the number of groups.
  static unsigned int readFastUnsignedInt(ByteBuffer& buffer);
  static void writeFastUnsignedInt(ByteBuffer& buffer, unsigned int value);

  /// A text as its length and a number for each byte. Odd on purpose: a byte from 128 up counts as negative and takes
  /// five bytes.
  static zkstring readString(ByteBuffer& buffer);
  static void writeString(ByteBuffer& buffer, const zkstring& text);

  /// Year, month and day, and hours, minutes, seconds and milliseconds, as a number each, as far as asked for. What is
  /// not asked for reads as 1 January 1970 and as midnight.
  static DateTime readCompactDateTime(ByteBuffer& buffer, bool date, bool time);
  static void writeCompactDateTime(ByteBuffer& buffer, const DateTime& value, bool date, bool time);

  static constexpr unsigned int setHighBit(unsigned int value) { return (value & 127) | 128; }
  static constexpr unsigned int clearHighBit(unsigned int value) { return value & 127; }
  static constexpr unsigned int clearHighBitLS(unsigned int value, unsigned int shift) {
    return (value & 127) << (shift & 31);
  }
};

}  // namespace zarvik
