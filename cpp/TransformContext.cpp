#include "TransformContext.h"

namespace zarvik {

constinit const zkstringliteral TransformContext::INPUT_FORMAT_PROPERTY("input.format");

TransformContext::~TransformContext() = default;

void TransformContext::setProperty(const zkstring& name, const zkstring& value) {
  getPropertyMap().insert_or_assign(name, value);
}

zkstring TransformContext::getProperty(const zkstring& name) {
  const Properties& properties = getPropertyMap();
  const auto entry = properties.find(name);
  return entry != properties.end() ? entry->second : zkstring();
}

Properties& TransformContext::getPropertyMap() {
  if (propertyMap == nullptr) propertyMap = std::make_unique<Properties>();
  return *propertyMap;
}

}  // namespace zarvik
