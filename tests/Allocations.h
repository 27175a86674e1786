#pragma once

/// Counts the allocations of this test program while it lives: every operator new, of whatever form.
/// It is how "allocates nothing" is tested.
class Allocations {
 public:
  Allocations() : before(total()) {}
  long count() const { return total() - before; }

 private:
  static long total();
  long before;
};
