#pragma once

#include "IFieldValidation.h"

namespace orders {

/// The field validation ISIN_CHECK: whether a text is an ISIN, check digit and all.
class IsinCheck : public zarvik::IFieldValidation {
 public:
  bool validate(const zarvik::zkstring& argument, const zarvik::Object* value, zarvik::DataObject* object) override;
};

}  // namespace orders
