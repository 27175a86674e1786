#include "FieldBuffer.h"

#include <algorithm>
#include <limits>
#include <new>

namespace zarvik {
namespace {

constexpr std::size_t largest = std::numeric_limits<int>::max() / 2;
}

FieldBuffer& FieldBuffer::operator=(const FieldBuffer& other) {
  if (this == &other) return *this;
  clear();
  append(other.view());
  return *this;
}

void FieldBuffer::append(std::string_view bytes) {
  reserve(bytes.size());
  setNext(std::copy(bytes.begin(), bytes.end(), behind));
}

void FieldBuffer::growTo(char* end) { behind = grow(end, 0); }

/// Makes room for `added` bytes behind `end` and gives the end's new place; the bytes so far stay as they are if it
/// fails.
char* FieldBuffer::grow(char* end, std::size_t added) {
  const auto used = static_cast<std::size_t>(end - block.get());
  const auto capacity = static_cast<std::size_t>(full - block.get());
  if (block != nullptr && used + added <= capacity) return end;
  if (used > largest || added > largest - used) throw std::bad_array_new_length();
  const std::size_t larger = std::max(used + added, 2 * capacity);
  std::unique_ptr<char[]> bytes(new char[larger + spare]);
  std::copy(block.get(), end, bytes.get());
  block = std::move(bytes);
  full = block.get() + larger;
  return block.get() + used;
}

}  // namespace zarvik
