#pragma once

#include <memory>

#include "Object.h"
#include "Properties.h"

namespace zarvik {

/// The bag of properties that travels with one request through every processing call.
///
/// A context that nobody writes to allocates nothing. One thread at a time.
class TransformContext : public Object {
 public:
  static const zkstringliteral INPUT_FORMAT_PROPERTY;  ///< name of the input format

  TransformContext() = default;
  ~TransformContext() override;

  virtual void setProperty(const zkstring& name, const zkstring& value);  ///< an empty value is kept as an entry
  virtual zkstring getProperty(const zkstring& name);                     ///< empty if absent

 protected:
  Properties& getPropertyMap();

 private:
  std::unique_ptr<Properties> propertyMap;  ///< null until first used
};

}  // namespace zarvik
