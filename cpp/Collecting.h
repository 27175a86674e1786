#pragma once

#include <utility>

#include "ExceptionDataObject.h"
#include "ExceptionHandler.h"
#include "Result.h"
#include "SmartPtr.h"

namespace zarvik {

/// The value of `work`, which takes an ExceptionHandler*, and the errors that it handed to that handler. What `work`
/// throws passes through, and the errors so far are let go.
template <class Work>
auto collecting(Work work) -> Result<decltype(work(nullptr))> {
  CascadingExceptionHandler handler;
  try {
    auto value = work(&handler);
    return {std::move(value), std::move(handler.getExceptions())};
  } catch (...) {
    for (ExceptionDataObject* entry : handler.getExceptions()) SmartPtr<ExceptionDataObject>{entry};
    throw;
  }
}

}  // namespace zarvik
