#include "RawMessageObject.h"

#include "KelvaraTypes.h"

namespace zarvik {

zkstring RawMessageObject::toString() const { return value.isNull() ? zkstring() : value->toString(); }

const zkstring& RawMessageObject::getObjectType() const { return KelvaraTypes::RAW_MESSAGE_TYPE; }

void RawMessageObject::setObject(const Object* other) { setRawMessage(other->getRawMessage()); }

}  // namespace zarvik
