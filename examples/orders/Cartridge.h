#pragma once

#include <string>

namespace zarvik {
class MessageRouter;
}

namespace orders {

/// Binds all that the cartridge has to offer (Names.h) and registers its classes. Once per process, before the first
/// message. The files of the protocol FILES go to `folder`, which is there.
void install(const std::string& folder);

/// Adds the rows that send the cartridge's FIX messages to their input formats, unless the router was initialised
/// before. Orders of FIX 4.2 go out again as FIX 4.4 and the other way round, to MEMORY; executions likewise.
void addRows(zarvik::MessageRouter& router);

}  // namespace orders
