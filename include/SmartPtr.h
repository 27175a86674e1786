#pragma once

#include <utility>

namespace zarvik {

/// An owner of an object of any class below Object: holds one count of a counted object, and is the sole owner of one
/// that is not counted.
///
/// Assignment lets go of the old object before it takes the new one, so a sole owner is not assigned to itself.
/// Access is unchecked.
template <class T>
class SmartPtr {
 public:
  SmartPtr() = default;
  SmartPtr(T* object) { set(object); }
  SmartPtr(const SmartPtr& other) { set(other.pointer); }
  SmartPtr(SmartPtr&& other) noexcept : pointer(std::exchange(other.pointer, nullptr)) {}
  ~SmartPtr() noexcept(false) { release(); }

  SmartPtr& operator=(const SmartPtr& other) {
    reset(other.pointer);
    return *this;
  }
  SmartPtr& operator=(SmartPtr&& other) {  // not noexcept: letting go may throw
    SmartPtr taken(std::move(other));      // so that moving to itself does no harm
    std::swap(pointer, taken.pointer);
    return *this;
  }
  SmartPtr& operator=(T* object) {
    reset(object);
    return *this;
  }

  void reset(T* object) {
    release();
    set(object);
  }
  void release() {
    // Null before the object goes: its destructor may look at its owner.
    if (T* const old = std::exchange(pointer, nullptr)) old->releaseRef();
  }

  T* get() const { return pointer; }
  T* operator->() const { return pointer; }
  T& operator*() const { return *pointer; }
  bool isNull() const { return pointer == nullptr; }

 private:
  void set(T* object) {
    pointer = object;
    if (object != nullptr) object->addRef();
  }

  T* pointer = nullptr;
};

}  // namespace zarvik
