#pragma once

#include <memory>

#include "OutputDevice.h"

namespace zarvik {

/// Keeps its output in one block of memory, from where it is read at any time, closed or not.
///
/// The block at least doubles when it grows and never shrinks, so writing n bytes in small pieces copies a small
/// multiple of n. It grows up to 2^31 - 2 bytes; what does not fit throws std::bad_array_new_length and changes
/// nothing.
class ByteArrayOutputDevice : public AbstractOutputDevice {
 public:
  explicit ByteArrayOutputDevice(const DeviceInfo& info);       ///< without a block until something is written
  ByteArrayOutputDevice(const DeviceInfo& info, int capacity);  ///< with room for `capacity` bytes, 0 or more
  ByteArrayOutputDevice(const ByteArrayOutputDevice&) = delete;
  ByteArrayOutputDevice& operator=(const ByteArrayOutputDevice&) = delete;
  ~ByteArrayOutputDevice() override;

  void write(const char* bytes, int count) override;
  void close() override {}

  // All that was written, with a NUL behind it that is not counted; valid until the next `write` or `clear`.
  const char* getAsBytes(int& byteCount);  ///< `byteCount` becomes the number of bytes
  const char* getAsString(int& byteCount) { return getAsBytes(byteCount); }
  const char* getAsString();

  int getLength() const { return length; }
  int getCapacity() const { return capacity; }  ///< bytes that the block holds without growing
  void clear();                                 ///< gives the block back

 private:
  std::unique_ptr<char[]> buffer;  ///< one byte more than `capacity`, for the NUL; null before the first write
  int length = 0;
  int capacity = 0;
};

}  // namespace zarvik
