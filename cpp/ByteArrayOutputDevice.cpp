#include "ByteArrayOutputDevice.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <new>

namespace zarvik {
namespace {

/// A block for `capacity` bytes and the NUL behind them.
std::unique_ptr<char[]> blockOf(int capacity) {
  return std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(capacity) + 1);
}

/// The capacity that takes `count` bytes behind `length` where `capacity` does not.
int grownCapacity(int capacity, int length, int count) {
  constexpr __int64 most = std::numeric_limits<int>::max();
  const __int64 needed = __int64{length} + count + 1;
  if (needed > most) throw std::bad_array_new_length();
  return static_cast<int>(std::min(std::max(needed, __int64{capacity} * 2), most));
}
}  // namespace

ByteArrayOutputDevice::ByteArrayOutputDevice(const DeviceInfo& info) : AbstractOutputDevice(info) {}

ByteArrayOutputDevice::ByteArrayOutputDevice(const DeviceInfo& info, int capacity)
    : AbstractOutputDevice(info), buffer(blockOf(capacity)), capacity(capacity) {
  assert(capacity >= 0);
}

ByteArrayOutputDevice::~ByteArrayOutputDevice() = default;

void ByteArrayOutputDevice::write(const char* bytes, int count) {
  assert(count >= 0);
  std::unique_ptr<char[]> old;  // outlives the copying: the bytes may be the device's own
  if (capacity - length < count) {
    const int grown = grownCapacity(capacity, length, count);
    old = std::exchange(buffer, blockOf(grown));
    std::copy_n(old.get(), length, buffer.get());
    capacity = grown;
  }
  std::copy_n(bytes, count, buffer.get() + length);
  length += count;
}

const char* ByteArrayOutputDevice::getAsBytes(int& byteCount) {
  byteCount = length;
  return getAsString();
}

const char* ByteArrayOutputDevice::getAsString() {
  if (buffer == nullptr) return "";
  buffer[static_cast<std::size_t>(length)] = '\0';
  return buffer.get();
}

void ByteArrayOutputDevice::clear() {
  buffer.reset();
  length = 0;
  capacity = 0;
}

}  // namespace zarvik
