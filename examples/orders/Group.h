#pragma once

#include "DataObjectSectionImpl.h"

namespace orders {

/// A repeating group whose elements are all of class `T`.
template <class T>
class Group final : public zarvik::DataObjectSectionImpl {
 public:
  using DataObjectSectionImpl::DataObjectSectionImpl;

  T& add() {  ///< a new, empty element, which is the group's
    T* const element = new T(this);
    addElement(element);
    return *element;
  }
  T& at(int index) const { return static_cast<T&>(*getElement(index)); }
};

}  // namespace orders
