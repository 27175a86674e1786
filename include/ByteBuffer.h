#pragma once

#include <bit>

#include "Binary.h"
#include "zkstring.h"

namespace zarvik {

/// A growing buffer of bytes and a reader over it: written at its end, read from its start.
///
///     ByteBuffer buffer;
///     buffer.append(text);
///     buffer.append(12.5);
///     while (buffer.hasMore()) use(buffer.read());
///
/// Storage doubles as it grows, so that filling a buffer takes linear time. A buffer over foreign bytes only reads
/// them, and takes a copy of its own before the first byte is written to it. The bytes bear no terminator. Sizes are
/// counted in bytes and end at the largest `int`: what goes beyond throws std::bad_array_new_length.
class ByteBuffer {
 public:
  ByteBuffer() : ByteBuffer(16) {}
  explicit ByteBuffer(int capacity) { init(capacity); }
  ByteBuffer(const char* data, int length);  ///< a reader of bytes that outlive it
  ByteBuffer(const ByteBuffer&) = delete;
  ~ByteBuffer() { release(); }

  /// Lets go of what it has and takes all fields of `other`, its storage and the ownership of it included: from then
  /// on two buffers own the same bytes, and only one of them may be written to or destroyed.
  ByteBuffer& operator=(const ByteBuffer& other);

  void init(int capacity);  ///< an empty buffer with room for `capacity` bytes; what it had is gone

  void append(const char* data, int n) {  ///< `data` may lie in this buffer
    if (lacks(n)) return appendGrowing(data, n);
    if (n != 0) std::memmove(bytes + used, data, static_cast<std::size_t>(n));  // may overlap behind a chop
    used += n;
  }
  void append(const zkstring& text) { append(text.data(), static_cast<int>(text.length())); }
  void append(const Binary& value) { append(value.data(), static_cast<int>(value.length())); }
  void append(const ByteBuffer& other) { append(other.bytes, other.used); }  ///< all of its bytes, read or not
  void append(char c) {
    if (lacks(1)) ensureFree(1);
    bytes[used++] = c;
  }
  void write(int byte) { append(static_cast<char>(byte)); }  ///< the low eight bits
  void write(const Binary& value) { append(value); }

  /// The text forms of Conversion.h; with `point` in place of the decimal point.
  void append(int value) { append(scratch.assign(value)); }
  void append(__int64 value) { append(scratch.assign(value)); }
  void append(float value) { append(scratch.assign(value)); }
  void append(double value) { append(scratch.assign(value)); }
  void append(float value, char point) { append(double{value}, point); }
  void append(double value, char point);

  void appendDelimiter(const char* delimiter);  ///< up to its terminator
  void appendDelimiter(const zkstring& delimiter) { append(delimiter); }

  void ensureFree(int n);          ///< room for `n` bytes more
  void expandCapacity(int total);  ///< room for `total` bytes in all
  void chop(int n) {  ///< the length becomes `n`, up to the capacity: shortens, or takes in bytes written there
    assert(n >= 0);
    used = n;
  }

  /// Reading beyond the end throws TransformException "Out of bounds".
  int read() {  ///< the next byte, -128 to 127
    if (position >= used) throwOutOfBounds();
    return static_cast<signed char>(bytes[position++]);
  }
  /// The bytes at the read position, which moves on by `n`. Odd on purpose: the last byte of the buffer cannot be
  /// taken this way. The pointer is good until the buffer grows or goes.
  signed char* getCursor(int n) {
    if (n < 0 || n >= used - position) throwOutOfBounds();
    return reinterpret_cast<signed char*>(bytes + std::exchange(position, position + n));
  }
  /// As `getCursor`, but up to the last byte.
  const char* take(unsigned int n) {
    require(n);
    return bytes + std::exchange(position, position + static_cast<int>(n));
  }
  void require(unsigned int n) const {  ///< throws unless there are `n` more bytes to read
    if (__int64{n} > used - position) throwOutOfBounds();
  }
  bool hasMore() const { return position < used; }
  int getPosition() const { return position; }       ///< of the next byte to read
  int available() const { return used - position; }  ///< bytes not yet read

  const char* str() const { return bytes; }
  int pcount() const { return used; }
  int length() const { return used; }
  int getCapacity() const { return capacity; }  ///< 0 for a reader of foreign bytes
  const char* getByteArray(int& length) const {
    length = used;
    return bytes;
  }
  const char* toByteArray(int& length) const { return getByteArray(length); }
  zkstring toString() const { return zkstring(bytes, static_cast<unsigned int>(used)); }  ///< a copy

  /// The same bits as another type.
  static int floatToIntBits(float value) { return std::bit_cast<int>(value); }
  static float intBitsToFloat(int bits) { return std::bit_cast<float>(bits); }
  static __int64 doubleToLongBits(double value) { return std::bit_cast<__int64>(value); }
  static double longBitsToDouble(__int64 bits) { return std::bit_cast<double>(bits); }

 private:
  bool lacks(int n) const { return n < 0 || n > capacity - used; }  ///< a negative size is refused on the slow road
  void appendGrowing(const char* data, int n);
  char* moveTo(int total);  ///< gives the old storage, if it is to be freed
  void release() {
    if (owner) delete[] bytes;
  }
  [[noreturn]] static void throwOutOfBounds();

  char* bytes = nullptr;
  int capacity = 0;    ///< bytes allocated
  int used = 0;        ///< bytes in use: where writing goes on
  int position = 0;    ///< where reading goes on
  bool owner = false;  ///< whether the storage is this buffer's to free
  zkstring scratch;    ///< the texts of numbers, one after the other in one block
};

}  // namespace zarvik
