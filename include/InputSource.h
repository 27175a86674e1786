#pragma once

#include "Binary.h"

namespace zarvik {

/// A block of bytes from outside, which may be read any number of times.
class InputSource {
 public:
  virtual ~InputSource() noexcept(false) = default;

  /// The bytes, not terminated, valid as long as the source; `length` becomes their number.
  virtual const char* getAsBytes(int& length) = 0;
  virtual Binary getAsBinary();  ///< by default a copy of the bytes, with a NUL behind them that is not counted
};

}  // namespace zarvik
