#pragma once

#include "RawMessage.h"
#include "WrapperObjects.h"
#include "zkstringbuffer.h"

namespace zarvik {

class FieldMetaInfo;

/// Writes the fields of a record as XML, one a line. It is an object of every kind: a record puts its values into it
/// as into a box that is used again, and they come out as text at once.
///
///     XMLFields out(level);
///     out.beginField(*metaInfo.getFieldMetaInfo(i));
///     record.getField(i, out);
///
/// Nothing is allocated but for the text, and for values whose text must be made first: dates, bytes, big numbers, and
/// what has characters to escape.
class XMLFields final : public Object {
 public:
  /// At `level` tabs, 52 at most; `fieldCount` is the number of fields to expect.
  XMLFields(int level, int fieldCount);

  /// The next value put in is this field's.
  void beginField(const FieldMetaInfo& described) { field = &described; }

  void setInt(int value) override { setWhole(value); }
  void setLong(__int64 value) override { setWhole(value); }
  void setDouble(double value) override;
  void setString(const zkstring& value) override;
  void setFloat(float value) override { setBoxed(FloatObject(value)); }
  void setCharacter(char value) override { setBoxed(CharObject(value)); }
  void setBoolean(bool value) override { setBoxed(BoolObject(value)); }
  void setBigInteger(const BigInteger& value) override { setBoxed(BigIntegerObject(value)); }
  void setBigDecimal(const BigDecimal& value) override { setBoxed(BigDecimalObject(value)); }
  void setDate(const DateTime& value) override { setBoxed(DateObject(value)); }
  void setISODate(const ISODateTime& value) override { setBoxed(ISODateObject(value)); }
  void setBinary(const Binary& value) override { setBoxed(BinaryObject(value)); }
  void setRawMessage(const RawMessage& value) override;
  void setObject(const Object* value) override;  ///< a box, a section, or a nested record

  const zkstring& text() const { return out; }

 private:
  template <class T>
  void setWhole(T value);
  template <class Box>
  void setBoxed(const Box& box) {
    setObject(&box);
  }
  void writeText(const zkstring& text);  ///< escapes it
  char* beginLine(unsigned int room);    ///< writes the tag; gives where the text goes, with `room` for it
  void endLine(char* at);                ///< the text ends at `at`

  zkstringbuffer out;
  int level;
  unsigned int depth;  ///< the tabs that `level` asks for
  const FieldMetaInfo* field = nullptr;
};

}  // namespace zarvik
