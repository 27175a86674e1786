#pragma once

#include "zkstring.h"

namespace zarvik {
class MessageRouter;
}

namespace route {

extern const zarvik::zkstringliteral ROW_PROPERTY;  ///< the context property that tells which row took a message

/// Adds the rows of this host, and binds the formats that they name.
void addRows(zarvik::MessageRouter& router);

/// The rows as a table to read.
void printRows();

}  // namespace route
