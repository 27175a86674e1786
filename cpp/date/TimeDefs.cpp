#include "date/TimeDefs.h"

namespace zarvik {

constinit const zkstringliteral TimeDefs::DEFAULT_TIME_FORMAT("HH:mm:ss");
constinit const zkstringliteral TimeDefs::DEFAULT_DATE_FORMAT("yyyyMMdd");
constinit const zkstringliteral TimeDefs::DEFAULT_DATE_TIME_FORMAT("yyyyMMdd");
constinit const zkstringliteral TimeDefs::DEFAULT_BC_STRING(" B.C.");

}  // namespace zarvik
