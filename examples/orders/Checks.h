#pragma once

#include "AbstractValidationRules.h"

namespace orders {

/// `Rules`, a base of validation rules, with a check of one line.
template <class Rules>
class Checks : public Rules {
 protected:
  /// Unless it `holds`, reports to the handler that the field at `index` of `object` breaks `rule`.
  void check(bool holds, const char* rule, zarvik::DataObject* object, int index) {
    if (holds) return;
    try {
      this->throwFieldInvalid(rule, "ORD001", "error", true, object, index);
    } catch (zarvik::FieldValidationException& error) {
      this->exceptionHandler->onException(&error);
    }
  }
};

}  // namespace orders
