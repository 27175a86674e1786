#pragma once
namespace zarvik {
class DateTime {};
class ISODateTime : public DateTime {};
}  // namespace zarvik
