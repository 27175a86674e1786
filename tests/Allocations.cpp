#include "Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> allocations{0};
}

long Allocations::total() { return allocations; }

// The array forms end here too.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  ++allocations;
  return std::malloc(size);
}
void* operator new(std::size_t size) {
  if (void* const block = operator new(size, std::nothrow)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }
