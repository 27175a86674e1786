#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>

namespace zarvik {

/// A minimal array that grows, for the inside of other classes.
///
/// Copying and assigning make the two lists aliases of one array, each with its own size: a change of an element shows
/// in both, an element added by one is not counted by the other and may be overwritten by it, until one of them grows
/// into an array of its own. The array goes with the last list that uses it, so an alias is never left dangling.
/// Grows in steps of 10, so it is meant for short lists. Positions are unchecked. One thread at a time.
template <class T>
class ArrayList {
 public:
  ArrayList() = default;
  ArrayList(const ArrayList& other) : data(other.data), count(other.count), capacity(other.capacity) {
    if (data != nullptr) ++owners(data);
  }
  ArrayList& operator=(const ArrayList& other) {
    ArrayList alias(other);
    std::swap(data, alias.data);
    std::swap(count, alias.count);
    std::swap(capacity, alias.capacity);
    return *this;
  }
  ~ArrayList() noexcept(noexcept(std::declval<T&>().~T())) { release(data, capacity); }

  void push_back(const T& value) {
    if (isFull(1)) {
      const T kept(value);  // may lie in the array that goes
      ensureFree(1);
      data[count++] = kept;
    } else {
      data[count++] = value;
    }
  }
  void pop_back() {  ///< the list is not empty; the element is overwritten later, not destroyed
    assert(count > 0);
    --count;
  }
  T& at(unsigned int i) const {
    assert(i < count);
    return data[i];
  }
  const T& top() const { return at(count - 1); }  ///< the last element
  unsigned int size() const { return count; }
  void clear() { count = 0; }                            ///< keeps the array, and the elements in it undestroyed
  void reserve(unsigned int more) { ensureFree(more); }  ///< room for `more` elements on top of those in use

 private:
  // The array stands in one allocation behind the number of the lists that use it.
  static constexpr std::size_t headerSize = alignof(std::max_align_t);
  static_assert(alignof(T) <= headerSize);

  static void* header(T* array) { return reinterpret_cast<std::byte*>(array) - headerSize; }
  static unsigned int& owners(T* array) { return *static_cast<unsigned int*>(header(array)); }

  static T* create(std::size_t capacity) {
    constexpr std::size_t most = (std::numeric_limits<std::size_t>::max() - headerSize) / sizeof(T);
    if (capacity > std::min<std::size_t>(most, std::numeric_limits<unsigned int>::max())) {
      throw std::bad_array_new_length();
    }
    void* const block = ::operator new(headerSize + capacity * sizeof(T));
    new (block) unsigned int(1);
    T* const array = reinterpret_cast<T*>(static_cast<std::byte*>(block) + headerSize);
    std::uninitialized_value_construct_n(array, capacity);  // elements here do not throw when made empty
    return array;
  }
  static void release(T* array, unsigned int capacity) {
    if (array == nullptr || --owners(array) != 0) return;
    std::destroy_n(array, capacity);
    ::operator delete(header(array));
  }

  /// The capacity always stays above the size.
  bool isFull(unsigned int more) const { return std::size_t{count} + more >= capacity; }

  void ensureFree(unsigned int more) {
    if (!isFull(more)) return;
    const std::size_t newCapacity = std::size_t{capacity} + std::max(more, 10U);
    T* const grown = create(newCapacity);
    std::copy_n(data, count, grown);
    release(data, capacity);
    data = grown;
    capacity = static_cast<unsigned int>(newCapacity);
  }

  T* data = nullptr;
  unsigned int count = 0;     ///< elements in use
  unsigned int capacity = 0;  ///< elements in the array
};

}  // namespace zarvik
