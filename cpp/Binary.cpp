#include "Binary.h"

namespace zarvik {

Binary::Binary(const char* bytes, unsigned int length, bool asStatic) : zkstring(bytes, length, nullptr, false) {
  if (!asStatic) init(bytes, length);
}

Binary::Binary(unsigned int n) {
  ensureCleanFree(n);
  count = n;
}

Binary& Binary::assign(const char* bytes, unsigned int length) { return *this = Binary(bytes, length); }

Binary Binary::sub(int start, int length) const {
  assert(start >= 0 && length >= 0 && static_cast<std::size_t>(start) + static_cast<std::size_t>(length) <= count);
  return Binary(pointer + start, static_cast<unsigned int>(length));
}

}  // namespace zarvik
