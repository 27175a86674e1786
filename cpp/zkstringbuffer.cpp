#include "zkstringbuffer.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <new>

namespace zarvik {

zkstringbuffer& zkstringbuffer::append(int n, char c) {
  if (n < 0) return *this;
  const auto added = static_cast<unsigned int>(n);
  ensureFree(added);
  std::memset(start() + count, c, added);
  count += added;
  return *this;
}

zkstringbuffer& zkstringbuffer::insert(unsigned int pos, const char* bytes, unsigned int length) {
  assert(pos <= count);
  if (holds(bytes)) return insert(pos, zkstring(bytes, length));  // the edit moves what it is to insert
  ensureFree(length);
  char* const gap = start() + pos;
  std::memmove(gap + length, gap, count - pos);
  if (length != 0) std::memcpy(gap, bytes, length);
  count += length;
  return *this;
}

zkstringbuffer& zkstringbuffer::erase(unsigned int pos, unsigned int n) {
  assert(pos <= count);
  const unsigned int removed = std::min(n, count - pos);
  if (removed == 0) return *this;
  char* const text = getMutableBuffer();
  std::memmove(text + pos, text + pos + removed, count - pos - removed);
  count -= removed;
  return *this;
}

zkstringbuffer& zkstringbuffer::replace(unsigned int pos, unsigned int n, const char* bytes, unsigned int length) {
  if (holds(bytes)) return replace(pos, n, zkstring(bytes, length));  // the edit moves what it is to insert
  return erase(pos, n).insert(pos, bytes, length);
}

void zkstringbuffer::reserve(unsigned int n) {
  if (n > capacity()) grow(n - capacity());
}

void zkstringbuffer::grow(std::size_t extra) {
  const std::size_t needed = std::size_t{count} + extra;
  if (array != nullptr && needed < array->length()) {  // roomy, but the text is a view into the middle of the block
    std::memmove(start(), pointer, count);
    pointer = start();
    return;
  }
  const std::size_t wanted = std::max(needed + 7, 2 * std::size_t{capacity()}) + 1;
  if (wanted > std::numeric_limits<unsigned int>::max()) throw std::bad_array_new_length();
  if (array != nullptr && pointer == start()) {
    array = chararray::resize(array, static_cast<unsigned int>(wanted));
  } else {  // constant text, or such a view
    chararray* const block = chararray::create(static_cast<unsigned int>(wanted));
    std::memcpy(block->getPtr(), pointer, count);
    clean();
    array = block;
  }
  pointer = start();
}

zkstringbuffer& zkstringbuffer::appendGrowing(const char* bytes, unsigned int length) {
  if (holds(bytes)) return append(zkstring(bytes, length));  // growth moves what it is to append
  grow(length);
  return append(bytes, length);
}

bool zkstringbuffer::holds(const char* bytes) const {
  const std::less_equal<> notAbove;  // also orders addresses of different blocks
  return array != nullptr && notAbove(start(), bytes) && notAbove(bytes, start() + array->length());
}

}  // namespace zarvik
