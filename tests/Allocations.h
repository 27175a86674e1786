#pragma once

/// Counts the allocations of this test program while it lives: every operator new, of whatever form.
/// It is how "allocates nothing" is tested.
class Allocations {
 public:
  Allocations() : before(total()), aliveBefore(inUse()) {}
  long count() const { return total() - before; }
  long alive() const { return inUse() - aliveBefore; }  ///< blocks that were made since and are still there

 private:
  static long total();
  static long inUse();
  long before;
  long aliveBefore;
};

/// While it lives, the n-th allocation from its making on fails, counted from 1, and only that one; none for 0.
class FailingAllocation {
 public:
  explicit FailingAllocation(long n);
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;
  ~FailingAllocation();

  bool happened() const;
};
