#pragma once

#include <cmath>

namespace zarvik {

/// Rounding to whole numbers.
class MathUtil {
 public:
  static double floor(double x) { return std::floor(x); }
  static double round(double x) { return std::floor(x + 0.5); }  ///< halves upwards: 2.5 gives 3, -0.5 gives 0
};

}  // namespace zarvik
