#include "KelvaraTypes.h"

namespace zarvik {

constinit const zkstringliteral KelvaraTypes::INT_TYPE("Integer");
constinit const zkstringliteral KelvaraTypes::FLOAT_TYPE("Float");
constinit const zkstringliteral KelvaraTypes::DOUBLE_TYPE("Double");
constinit const zkstringliteral KelvaraTypes::DATE_TIME_TYPE("DateTime");
constinit const zkstringliteral KelvaraTypes::DATE_ONLY_TYPE("DateOnly");
constinit const zkstringliteral KelvaraTypes::TIME_ONLY_TYPE("TimeOnly");
constinit const zkstringliteral KelvaraTypes::ISO_DATE_TIME_TYPE("ISODateTime");
constinit const zkstringliteral KelvaraTypes::ISO_DATE_TYPE("ISODate");
constinit const zkstringliteral KelvaraTypes::ISO_TIME_TYPE("ISOTime");
constinit const zkstringliteral KelvaraTypes::STRING_TYPE("String");
constinit const zkstringliteral KelvaraTypes::CHAR_TYPE("Character");
constinit const zkstringliteral KelvaraTypes::SECTION_TYPE("Section");
constinit const zkstringliteral KelvaraTypes::DATAOBJECT_TYPE("DataObject");
constinit const zkstringliteral KelvaraTypes::LONG_TYPE("Long");
constinit const zkstringliteral KelvaraTypes::BOOLEAN_TYPE("Boolean");
constinit const zkstringliteral KelvaraTypes::BINARY_TYPE("Binary");
constinit const zkstringliteral KelvaraTypes::RAW_MESSAGE_TYPE("RawMessage");
constinit const zkstringliteral KelvaraTypes::BIG_INTEGER_TYPE("BigInteger");
constinit const zkstringliteral KelvaraTypes::BIG_DECIMAL_TYPE("BigDecimal");

}  // namespace zarvik
