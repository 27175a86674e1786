#include "ByteBuffer.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/ByteBuffer";
constexpr int largest = std::numeric_limits<int>::max();

/// The sum of two sizes, if it is one.
int sum(int length, int n) {
  if (n < 0 || n > largest - length) throw std::bad_array_new_length();
  return length + n;
}
}  // namespace

ByteBuffer::ByteBuffer(const char* data, int length) : bytes(const_cast<char*>(data)), used(length) {
  assert(length >= 0);
}

ByteBuffer& ByteBuffer::operator=(const ByteBuffer& other) {
  if (bytes != other.bytes) release();
  bytes = other.bytes;
  capacity = other.capacity;
  used = other.used;
  position = other.position;
  owner = other.owner;
  scratch = other.scratch;
  return *this;
}

void ByteBuffer::init(int size) {
  char* const fresh = new char[static_cast<std::size_t>(sum(0, size))];
  release();
  bytes = fresh;
  capacity = size;
  used = 0;
  position = 0;
  owner = true;
}

void ByteBuffer::append(double value, char point) {
  const int start = used;
  append(value);
  std::replace(bytes + start, bytes + used, '.', point);
}

void ByteBuffer::appendDelimiter(const char* delimiter) { append(delimiter, static_cast<int>(std::strlen(delimiter))); }

void ByteBuffer::ensureFree(int n) { expandCapacity(sum(used, n)); }

void ByteBuffer::expandCapacity(int total) {
  if (total > capacity) delete[] moveTo(total);
}

void ByteBuffer::appendGrowing(const char* data, int n) {
  const std::unique_ptr<char[]> old(moveTo(sum(used, n)));  // stays as long as `data` may lie in it
  if (n != 0) std::memcpy(bytes + used, data, static_cast<std::size_t>(n));
  used += n;
}

char* ByteBuffer::moveTo(int total) {
  const int size = std::max({total, used, capacity > largest / 2 ? largest : 2 * capacity});
  char* const fresh = new char[static_cast<std::size_t>(size)];
  if (used != 0) std::memcpy(fresh, bytes, static_cast<std::size_t>(used));
  char* const old = std::exchange(bytes, fresh);
  capacity = size;
  return std::exchange(owner, true) ? old : nullptr;
}

void ByteBuffer::throwOutOfBounds() { throwFrom(here, TransformException("Out of bounds")); }

}  // namespace zarvik
