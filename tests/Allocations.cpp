#include "Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> allocations{0};
std::atomic<long> blocks{0};
std::atomic<long> leftToFailing{0};  // the allocation that brings it to 0 fails
}  // namespace

long Allocations::total() { return allocations; }
long Allocations::inUse() { return blocks; }

FailingAllocation::FailingAllocation(long n) { leftToFailing = n; }
FailingAllocation::~FailingAllocation() { leftToFailing = 0; }
bool FailingAllocation::happened() const { return leftToFailing <= 0; }

// The array forms end here too.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  ++allocations;
  if (leftToFailing > 0 && --leftToFailing == 0) return nullptr;
  void* const block = std::malloc(size);
  if (block != nullptr) ++blocks;
  return block;
}
void* operator new(std::size_t size) {
  if (void* const block = operator new(size, std::nothrow)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  if (block != nullptr) --blocks;
  std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }
