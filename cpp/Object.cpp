#include "Object.h"

#include <cinttypes>
#include <cstdint>
#include <cstdio>

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "Class.h"
#include "Exceptions.h"
#include "KelvaraTypes.h"
#include "ThrowFrom.h"
#include "date/DateTime.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/Object";
}  // namespace

constinit const zkstringliteral Object::OBJECT_TYPE("Object");

Object::~Object() noexcept(false) = default;

void Object::addRef() {}
void Object::releaseRef() { delete this; }

zkstring Object::toString() const {
  // A handful of digits: the address of the whole object, whatever base it is looked at through.
  char address[2 * sizeof(void*) + 1];
  std::snprintf(address, sizeof address, "%" PRIxPTR,
                reinterpret_cast<std::uintptr_t>(dynamic_cast<const void*>(this)));
  return Class(typeid(*this)).getName() + address;
}

Object* Object::clone() const {
  if (typeid(*this) == typeid(Object)) return new Object();
  throwFrom(here, Exception("Clone not implemented in " + Class(typeid(*this)).getName()));
}

int Object::getInt() const { unsupportedConversionException(KelvaraTypes::INT_TYPE); }
void Object::setInt(int /*value*/) { unsupportedConversionException(KelvaraTypes::INT_TYPE); }
__int64 Object::getLong() const { unsupportedConversionException(KelvaraTypes::LONG_TYPE); }
void Object::setLong(__int64 /*value*/) { unsupportedConversionException(KelvaraTypes::LONG_TYPE); }
double Object::getDouble() const { unsupportedConversionException(KelvaraTypes::DOUBLE_TYPE); }
void Object::setDouble(double /*value*/) { unsupportedConversionException(KelvaraTypes::DOUBLE_TYPE); }
float Object::getFloat() const { unsupportedConversionException(KelvaraTypes::FLOAT_TYPE); }
void Object::setFloat(float /*value*/) { unsupportedConversionException(KelvaraTypes::FLOAT_TYPE); }
char Object::getCharacter() const { unsupportedConversionException(KelvaraTypes::CHAR_TYPE); }
void Object::setCharacter(char /*value*/) { unsupportedConversionException(KelvaraTypes::CHAR_TYPE); }
bool Object::getBoolean() const { unsupportedConversionException(KelvaraTypes::BOOLEAN_TYPE); }
void Object::setBoolean(bool /*value*/) { unsupportedConversionException(KelvaraTypes::BOOLEAN_TYPE); }
BigInteger Object::getBigInteger() const { unsupportedConversionException(KelvaraTypes::BIG_INTEGER_TYPE); }
void Object::setBigInteger(const BigInteger& /*value*/) {
  unsupportedConversionException(KelvaraTypes::BIG_INTEGER_TYPE);
}
BigDecimal Object::getBigDecimal() const { unsupportedConversionException(KelvaraTypes::BIG_DECIMAL_TYPE); }
void Object::setBigDecimal(const BigDecimal& /*value*/) {
  unsupportedConversionException(KelvaraTypes::BIG_DECIMAL_TYPE);
}
DateTime Object::getDate() const { unsupportedConversionException(KelvaraTypes::DATE_TIME_TYPE); }
void Object::setDate(const DateTime& /*value*/) { unsupportedConversionException(KelvaraTypes::DATE_TIME_TYPE); }
ISODateTime Object::getISODate() const { unsupportedConversionException(KelvaraTypes::ISO_DATE_TIME_TYPE); }
void Object::setISODate(const ISODateTime& /*value*/) {
  unsupportedConversionException(KelvaraTypes::ISO_DATE_TIME_TYPE);
}
zkstring Object::getString() const { unsupportedConversionException(KelvaraTypes::STRING_TYPE); }
void Object::setString(const zkstring& /*value*/) { unsupportedConversionException(KelvaraTypes::STRING_TYPE); }
Binary Object::getBinary() const { unsupportedConversionException(KelvaraTypes::BINARY_TYPE); }
void Object::setBinary(const Binary& /*value*/) { unsupportedConversionException(KelvaraTypes::BINARY_TYPE); }
const RawMessage& Object::getRawMessage() const { unsupportedConversionException(KelvaraTypes::RAW_MESSAGE_TYPE); }
void Object::setRawMessage(const RawMessage& /*value*/) {
  unsupportedConversionException(KelvaraTypes::RAW_MESSAGE_TYPE);
}
const zkstring& Object::getObjectType() const { return OBJECT_TYPE; }
void Object::setObject(const Object* value) { unsupportedConversionException(value->getObjectType()); }

void Object::unsupportedConversionException(const zkstring& target) const {
  throwFrom(here, TransformException("Cannot convert " + getObjectType() + " to " + target));
}

ObjectRef::~ObjectRef() {
  if (refCount == 0) return;
  // The parts below are gone by now, so this is the name that the object answers to while it is being destroyed.
  TransformException error("Ref count error. Illegal delete for class " + Class(typeid(*this)).getName());
  error.getTrace().setFileName(here);
  error.getTrace().setLine(70);
  throw error;
}

}  // namespace zarvik
