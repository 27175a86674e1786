#pragma once

#include "IService.h"

namespace zarvik {

/// Collects output in memory for one transform context.
class IOutputContext : public IService {
 public:
  virtual void clear() = 0;  ///< drops what was collected
};

/// The collector that `TransformContext::createOutputContext` makes.
class IOutputContextImpl : public IOutputContext {
 public:
  void clear() override {}
};

}  // namespace zarvik
