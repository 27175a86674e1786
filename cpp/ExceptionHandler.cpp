#include "ExceptionHandler.h"

#include <memory>

#include "Exceptions.h"
#include "GuardedCast.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/ExceptionHandler";

/// A handler that no destructor ever takes down.
union SharedHandler {
  constexpr SharedHandler() : handler() {}
  ~SharedHandler() {}
  DraconianExceptionHandler handler;
};
constinit SharedHandler shared;
}  // namespace

constinit ExceptionHandler* ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER = &shared.handler;

void DraconianExceptionHandler::onException(ExceptionDataObject* exception) {
  const ExceptionDataObject& data = *exception;
  if (const auto* const error = dynamic_cast<const TransformException*>(&data)) {
    throwFrom(here, TransformException(*error));
  }
  // The analyser takes a cast that fails for a pointer that is null.
  throwFrom(here, TransformException(data));  // NOLINT(clang-analyzer-core.NonNullParamChecker)
}

void CascadingExceptionHandler::onException(ExceptionDataObject* exception) {
  std::unique_ptr<ExceptionDataObject> entry(guardedCast<ExceptionDataObject>(exception->clone()));
  exceptions.push_back(entry.get());
  static_cast<void>(entry.release());  // the list has it
}

}  // namespace zarvik
