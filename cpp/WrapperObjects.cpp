#include "WrapperObjects.h"

#include "Conversion.h"
#include "KelvaraTypes.h"

namespace zarvik {
namespace {

constinit const zkstringliteral datePattern("yyyy-MM-ddTHH:mm:ss.SSS");
}  // namespace

zkstring IntObject::toString() const { return intToString(value); }
zkstring LongObject::toString() const { return dlongToString(value); }
zkstring DoubleObject::toString() const { return doubleToString(value); }
zkstring FloatObject::toString() const { return floatToString(value); }
zkstring StringObject::toString() const { return value; }
zkstring CharObject::toString() const { return charToString(value); }
zkstring BoolObject::toString() const { return boolToString(value); }
zkstring BigIntegerObject::toString() const { return value.toString(); }
zkstring BigDecimalObject::toString() const { return value.toString(); }
zkstring BinaryObject::toString() const { return value.toString(); }
zkstring DateObject::toString() const { return value.toString(datePattern); }
zkstring ISODateObject::toString() const { return value.toString(datePattern); }

const zkstring& IntObject::getObjectType() const { return KelvaraTypes::INT_TYPE; }
const zkstring& LongObject::getObjectType() const { return KelvaraTypes::LONG_TYPE; }
const zkstring& DoubleObject::getObjectType() const { return KelvaraTypes::DOUBLE_TYPE; }
const zkstring& FloatObject::getObjectType() const { return KelvaraTypes::FLOAT_TYPE; }
const zkstring& StringObject::getObjectType() const { return KelvaraTypes::STRING_TYPE; }
const zkstring& CharObject::getObjectType() const { return KelvaraTypes::CHAR_TYPE; }
const zkstring& BoolObject::getObjectType() const { return KelvaraTypes::BOOLEAN_TYPE; }
const zkstring& BigIntegerObject::getObjectType() const { return KelvaraTypes::BIG_INTEGER_TYPE; }
const zkstring& BigDecimalObject::getObjectType() const { return KelvaraTypes::BIG_DECIMAL_TYPE; }
const zkstring& BinaryObject::getObjectType() const { return KelvaraTypes::BINARY_TYPE; }
const zkstring& DateObject::getObjectType() const { return KelvaraTypes::DATE_TIME_TYPE; }
const zkstring& ISODateObject::getObjectType() const { return KelvaraTypes::ISO_DATE_TIME_TYPE; }

void IntObject::setObject(const Object* other) { value = other->getInt(); }
void LongObject::setObject(const Object* other) { value = other->getLong(); }
void DoubleObject::setObject(const Object* other) { value = other->getDouble(); }
void FloatObject::setObject(const Object* other) { value = other->getFloat(); }
void StringObject::setObject(const Object* other) { value = other->getString(); }
void CharObject::setObject(const Object* other) { value = other->getCharacter(); }
void BoolObject::setObject(const Object* other) { value = other->getBoolean(); }
void BigIntegerObject::setObject(const Object* other) { value = other->getBigInteger(); }
void BigDecimalObject::setObject(const Object* other) { value = other->getBigDecimal(); }
void BinaryObject::setObject(const Object* other) { value = other->getBinary(); }
void DateObject::setObject(const Object* other) { value = other->getDate(); }
void ISODateObject::setObject(const Object* other) { value = other->getISODate(); }

}  // namespace zarvik
