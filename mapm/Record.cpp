#include "Record.h"

#include <cassert>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "DigitShift.h"

namespace {

constexpr int blockBytes = 208;  ///< to which it grows in place
constexpr int spareBytes = 16;   ///< that may be read and written, but count for nothing
constexpr int poolLimit = 256;

/// A record and the room for its first digits in one allocation. A longer number has a block of its own. In the pool
/// the place of the digits' address holds the next block's.
struct Block {
  M_APM_struct record;
  alignas(16) unsigned char digits[blockBytes + spareBytes];
};

/// The blocks that wait to be used again, with room for so many more.
struct Pool {
  Block* first;
  int room;
};
// Plain thread-local data without constructors: usable from any static initialiser and until the very end.
constinit thread_local Pool pool = {};

Block* nextOf(const Block* block) { return reinterpret_cast<Block*>(block->record.data); }

/// Opens the thread's pool, and gives it back when the thread ends; numbers that go later are freed one by one.
struct Drain {
  Drain() { pool.room = poolLimit; }
  ~Drain() {
    while (pool.first != nullptr) {
      Block* const block = pool.first;
      pool.first = nextOf(block);
      ::operator delete(block);
    }
    pool = {};
  }
};

void openPool() { [[maybe_unused]] static thread_local const Drain drain; }

Block* newBlock() { return static_cast<Block*>(zarvik::mapm::allocate(sizeof(Block), "'m_apm_init', Out of memory")); }

Block* pooledBlock() {
  Block* const block = pool.first;
  if (block == nullptr) return newBlock();
  pool.first = nextOf(block);
  ++pool.room;
  return block;
}

void intoPool(Block* block) {
  block->record.data = reinterpret_cast<unsigned char*>(pool.first);
  pool.first = block;
  --pool.room;
}

bool isSmall(const M_APM_struct* number) { return number->data == reinterpret_cast<const Block*>(number)->digits; }
}  // namespace

void M_apm_log_error_msg(bool fatal, const char* message) {
  std::fprintf(stderr, "MAPM %s: %s\n", fatal ? "Error" : "Warning", message);
  if (fatal) std::exit(100);
}

M_APM_struct* m_apm_init() {
  Block* const block = pooledBlock();
  std::memset(block->digits, 0, 16);
  block->record = {block->digits, M_APM_IDENT, 1, zarvik::mapm::leastRoom, 1, 0, 0};
  return &block->record;
}

namespace {

/// The end of a number that the pool does not take as it is.
[[gnu::noinline]] void freeOtherwise(M_APM_struct* number) {
  if (number->id != M_APM_IDENT) return M_apm_log_error_msg(false, "'m_apm_free', Invalid M_APM variable");
  number->id = 0;
  if (!isSmall(number)) ::operator delete(number->data);
  Block* const block = reinterpret_cast<Block*>(number);
  openPool();  // here, since a thread may free what another one made
  if (pool.room <= 0) return ::operator delete(block);
  intoPool(block);
}
}  // namespace

void m_apm_free(M_APM_struct* number) {
  const bool isUsual = number->id == M_APM_IDENT && isSmall(number) && pool.room > 0;
  if (!isUsual) return freeOtherwise(number);
  number->id = 0;
  intoPool(reinterpret_cast<Block*>(number));
}

void m_apm_copy(M_APM_struct* result, const M_APM_struct* a) {
  const int bytes = zarvik::mapm::paddedBytes(zarvik::mapm::byteCount(a));
  std::memcpy(zarvik::mapm::makeRoom(result, bytes), a->data, static_cast<std::size_t>(bytes));
  result->dataLength = a->dataLength;
  result->exponent = a->exponent;
  result->sign = a->sign;
}

namespace zarvik::mapm {

void outOfMemory(const char* message) {
  M_apm_log_error_msg(true, message);
  std::abort();
}

void* allocate(std::size_t bytes, const char* message) {
  try {
    return ::operator new(bytes);
  } catch (const std::bad_alloc&) {
    outOfMemory(message);
  }
}

unsigned char* makeLargeRoom(M_APM_struct* number, int bytes) {
  if (isSmall(number) && bytes <= blockBytes) {
    number->mallocLength = blockBytes;
    return number->data;
  }
  if (!isSmall(number)) ::operator delete(number->data);
  const std::size_t all = static_cast<std::size_t>(bytes) + spareBytes;
  number->data = static_cast<unsigned char*>(allocate(all, "'m_apm_make_room', Out of memory"));
  number->mallocLength = bytes;
  return number->data;
}

void refuse(M_APM_struct* number, const char* warning) {
  M_apm_log_error_msg(false, warning);
  setZero(number);
}

namespace {

int leadingZeroBytes(const unsigned char* data, int bytes) {
  int zeros = 0;
  while (zeros < bytes && data[zeros] == 0) ++zeros;
  return zeros;
}

/// Takes the zeros off the front and gives their count, with `bytes` what is left; there is a digit that is not zero.
int dropLeadingZeros(unsigned char* data, int& bytes) {
  const int zeros = leadingZeroBytes(data, bytes);
  if (zeros != 0) {
    bytes -= zeros;
    std::memmove(data, data + zeros, static_cast<std::size_t>(bytes));
    pad(data, bytes);
  }
  if (data[0] >= 10) return 2 * zeros;
  dropLeadingDigit(data, bytes);
  return 2 * zeros + 1;
}
}  // namespace

void settleLeadingZeros(M_APM_struct* number, int bytes, long long exponent, int sign) {
  unsigned char* const data = number->data;
  if (leadingZeroBytes(data, bytes) == bytes) return setZero(number);
  exponent -= dropLeadingZeros(data, bytes);
  normalise(number, bytes, exponent, sign);
}

void refuseExponent(M_APM_struct* number) { refuse(number, "'m_apm_normalize', Exponent out of range"); }

}  // namespace zarvik::mapm
