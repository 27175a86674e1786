#pragma once

#include <typeinfo>

#include "zkstring.h"

namespace zarvik {

/// The run-time identity of a class, as messages name it.
class Class {
 public:
  Class(const std::type_info& type) : type(&type) {}

  zkstring getName() const;  ///< with its namespace, such as "zarvik::IntObject"
  operator zkstring() const { return getName(); }
  bool operator==(const Class& other) const { return *type == *other.type; }

 private:
  const std::type_info* type;
};

}  // namespace zarvik
