#include "fix/FIXMessageIdentifier.h"

#include <cstring>
#include <memory>

#include "../StartUp.h"
#include "InputSource.h"
#include "fix/FIXHeader.h"

namespace zarvik {
namespace {

constexpr char prefix[] = "8=FIX";
constexpr int prefixLength = sizeof prefix - 1;
}  // namespace

DataObject* FIXMessageIdentifier::identifyMessage(InputSource& source) {
  int length = 0;
  const char* const text = source.getAsBytes(length);
  if (!isMatch(text, length)) return nullptr;
  auto header = std::make_unique<FIXHeader>();
  header->parseHeader(text, length);
  return header.release();
}

bool FIXMessageIdentifier::isMatch(const char* text, int length) const {
  return length >= prefixLength && std::memcmp(text, prefix, prefixLength) == 0;
}

zkstring FIXMessageIdentifier::getMessageFormat() const { return zkstringliteral("FIX"); }

}  // namespace zarvik

void registerClassFIXMessageIdentifier() {
  zarvik::registerLibraryClass<zarvik::FIXMessageIdentifier>(zarvik::zkstringliteral("FIXMessageIdentifier"));
}
