#pragma once

#include "BusinessTransactionWrapper.h"

namespace zarvik {

/// An internal message that can do nothing, for tests that override what they look at.
struct NoTransaction : BusinessTransactionWrapper {
  NoTransaction() : BusinessTransactionWrapper(nullptr) {}
};

}  // namespace zarvik
