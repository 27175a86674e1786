#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <deque>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

#include "Object.h"
#include "SmartPtr.h"
#include "zkstring.h"

namespace zarvik {

/// The container of lists of `bool`, whose elements, unlike those of a vector, can be referred to.
template <class T>
class SimpleDeque : public std::deque<T> {
 public:
  using std::deque<T>::deque;
};

/// A typed list of plain values: a handle on storage that all its copies share.
///
/// A copy, an assignment and a `clone()` make one more handle on the same elements, so that a change through one shows
/// in all; field values are handed out like this. A moved-from list is empty and has storage of its own when next
/// used. Positions count from 0; one outside the list throws std::out_of_range ("invalid vector<T> subscript",
/// "invalid deque<T> subscript") where that is told, and is unchecked elsewhere. One thread at a time.
///
/// `C` is the container of the elements, `T` their type: `SimpleDeque<bool>`, and `std::vector` of char, int, __int64,
/// float, double, zkstring, Binary, BigInteger, BigDecimal, DateTime and RawMessage.
template <class C, class T>
class VList : public Object {
 public:
  using iterator = typename C::iterator;
  using const_iterator = typename C::const_iterator;

  class ListImpl : public C, public ObjectRef {  ///< the storage: the container, counted
   public:
    ListImpl() = default;
    explicit ListImpl(C&& elements) : C(std::move(elements)) {}
  };

  VList() { createList(); }                                                  ///< a vector gets room for 10 elements
  explicit VList(C&& elements) : list(new ListImpl(std::move(elements))) {}  ///< takes them over
  VList(const VList& other) : Object(), list(&other.items()) {}
  VList(VList&& other) noexcept : list(std::move(other.list)) {}
  ~VList() noexcept(false) override = default;

  VList& operator=(const VList& other) {
    SmartPtr<ListImpl> taken(&other.items());  // so that the own storage survives being assigned to itself
    list = std::move(taken);
    return *this;
  }
  VList& operator=(VList&& other) {
    list = std::move(other.list);
    return *this;
  }

  VList& add(const T& value) {
    items().push_back(value);
    return *this;
  }
  VList& add(T&& value) {
    items().push_back(std::move(value));
    return *this;
  }
  void add(int index, const T& value) {  ///< before the element at `index`, or at the end
    assert(index >= 0 && index <= size());
    items().insert(getiteratorAt(index), value);
  }
  VList& addAll(const VList& other) {  ///< `other` does not share this list's storage: that would never end
    assert(&items() != &other.items());
    for (int i = 0; i < other.size(); ++i) add(other.at(i));
    return *this;
  }
  VList& addAll(T* array, int start, int count) {  ///< the `count` elements from `array[start]` on
    for (int i = 0; i < count; ++i) add(array[start + i]);
    return *this;
  }
  void clear() { items().clear(); }  ///< keeps the capacity

  Object* clone() const override { return new VList(*this); }  ///< one more handle on the same elements

  /// -1 or 1 at the first pair that differs, by which element is the lesser; without one the difference of the sizes.
  int compareTo(const VList& other) const {
    if (&items() == &other.items()) return 0;  // also with not-a-number in it
    const int common = std::min(size(), other.size());
    for (int i = 0; i < common; ++i) {
      if (!(at(i) == other.at(i))) return at(i) < other.at(i) ? -1 : 1;
    }
    return size() - other.size();
  }
  bool equals(const VList& other) const {
    const ListImpl& a = items();
    const ListImpl& b = other.items();
    return &a == &b || (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin()));
  }

  bool contains(const T& value) const { return indexOf(value) != -1; }
  int indexOf(const T& value) const {  ///< -1 if there is none
    const ListImpl& all = items();
    const const_iterator found = std::find(all.begin(), all.end(), value);
    return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
  }
  int lastIndexOf(const T& value) const {  ///< -1 if there is none
    int i = size();
    while (--i >= 0 && !(at(i) == value)) {
    }
    return i;
  }
  bool intersects(const VList& other) const {  ///< whether the two have an element in common
    const ListImpl& others = other.items();
    return std::any_of(others.begin(), others.end(), [this](const T& value) { return contains(value); });
  }

  const T& get(int index) const { return checked(index); }  ///< range-checked, as are the next five
  const T& getValue(int index) const { return checked(index); }
  T& operator[](int index) { return checked(index); }
  const T& operator[](int index) const { return checked(index); }
  T set(int index, const T& value) { return checked(index) = value; }  ///< returns the new value

  /// Returns what then stands at `index`, the removed element's successor; for the last element its own value.
  T removeElementAt(int index) {
    T& removed = checked(index);
    if (index + 1 == size()) {
      T last(removed);
      items().pop_back();
      return last;
    }
    return *erase(getiteratorAt(index));
  }

  int size() const { return static_cast<int>(items().size()); }
  /// Such as "[1, 2]"; a bool is 0 or 1, a raw message its text, a null one nothing.
  zkstring toString() const override;

  iterator begin() { return items().begin(); }
  iterator end() { return items().end(); }
  const_iterator begin() const { return std::as_const(items()).begin(); }
  const_iterator end() const { return std::as_const(items()).end(); }
  iterator getiteratorAt(int index) { return begin() + index; }  ///< `index` is at most the size
  iterator erase(iterator position) { return items().erase(position); }

 private:
  static constexpr bool isVector = std::is_same_v<C, std::vector<T>>;

  void createList() const {
    list = new ListImpl;
    if constexpr (isVector) list->reserve(10);
  }
  ListImpl& items() const {
    if (list.isNull()) createList();  // moved from
    return *list;
  }
  T& at(int index) const { return items()[static_cast<std::size_t>(index)]; }
  T& checked(int index) const {
    if (index < 0 || index >= size()) outOfRange();
    return at(index);
  }
  [[noreturn]] static void outOfRange() {
    throw std::out_of_range(isVector ? "invalid vector<T> subscript" : "invalid deque<T> subscript");
  }

  mutable SmartPtr<ListImpl> list;  ///< null only in a list that was moved from
};

using StringList = VList<std::vector<zkstring>, zkstring>;

}  // namespace zarvik
