#pragma once

#include <vector>

#include "zkstring.h"

namespace zarvik {
class MessageRouter;
}

namespace route {

// Properties that a row sets beside those of the library: its own name, and the message that it takes.
inline constinit const zarvik::zkstringliteral ROW_PROPERTY = "route.row";
inline constinit const zarvik::zkstringliteral MESSAGE_PROPERTY = "route.message";

/// Adds the rows of this host, and binds the one input format of its own.
void addRows(zarvik::MessageRouter& router);

/// The output devices that the rows name, each once.
std::vector<const char*> devices();

/// The rows as a table to read.
void printRows();

}  // namespace route
