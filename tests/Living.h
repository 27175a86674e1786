#pragma once

namespace zarvik {

/// A Base that counts how many objects of its kind are alive, for tests of who lets go of what.
template <class Base>
struct Living : Base {
  Living() { ++alive; }
  ~Living() override { --alive; }
  inline static int alive = 0;
};

}  // namespace zarvik
