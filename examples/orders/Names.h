#pragma once

#include "zkstring.h"

namespace orders {

// What the cartridge is known by in the registry. A FIX message has three names: its own, such as "NewOrderSingle42",
// for flows and tools, and the same with "In" and "Out" behind it for its input and its output format.
inline constinit const zarvik::zkstringliteral ORDER_MESSAGE = "Order";  ///< the internal message
inline constinit const zarvik::zkstringliteral XML_OUT = "NOXMLOut";     ///< the library's own output format
inline constinit const zarvik::zkstringliteral BYTES_OUT = "OrderBytesOut";
inline constinit const zarvik::zkstringliteral FILES = "OrderFiles";    ///< the protocol that writes files
inline constinit const zarvik::zkstringliteral MEMORY = "OrderMemory";  ///< the protocol that collects in memory

// Properties that the FIX output reads; the trigger of deliveries has them.
inline constinit const zarvik::zkstringliteral SENDER_PROPERTY = "fix.sender";  ///< our SenderCompID
inline constinit const zarvik::zkstringliteral TARGET_PROPERTY = "fix.target";  ///< whom we write to

inline constinit const zarvik::zkstringliteral ISIN_CHECK = "IsinCheck";  ///< the class of our field validation

}  // namespace orders
