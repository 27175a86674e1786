#include "IMessage.h"

namespace zarvik {

constinit const zkstringliteral IMessage::MESSAGE_FORMAT("message.format");
constinit const zkstringliteral IMessage::XML_FORM("xml");
constinit const zkstringliteral IMessage::ZARVIK_FORM("zarvik");

}  // namespace zarvik
