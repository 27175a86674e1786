#pragma once

#include <vector>

#include "Object.h"

namespace zarvik {

class ExceptionDataObject;

/// Decides what becomes of an error that need not stop the stage which met it: a parser, a validator, a writer.
///
/// A stage holds a plain pointer to a handler that outlives the call.
class ExceptionHandler : public Object {
 public:
  /// The default of all stages: throws at the first error. Lives until the process ends and may be shared by threads;
  /// set before the first static initialiser runs.
  static ExceptionHandler* DRACONIAN_EXCEPTION_HANDLER;

  /// `exception` is not null and stays the caller's.
  virtual void onException(ExceptionDataObject* exception) = 0;
};

/// Throws every error.
class DraconianExceptionHandler : public ExceptionHandler {
 public:
  /// Throws a TransformException, and none of the classes below, with the message, the fields and the context
  /// properties of `exception`.
  [[noreturn]] void onException(ExceptionDataObject* exception) override;
};

/// Keeps a clone of every error, so that the stage goes on.
///
///     CascadingExceptionHandler handler;
///     parser.setExceptionHandler(&handler);
///     ...
///     return {value, handler.getExceptions()};
///
/// The clones have count 0 and belong to whoever takes the list, neither to the handler nor to its copies.
class CascadingExceptionHandler : public ExceptionHandler {
 public:
  void onException(ExceptionDataObject* exception) override;
  std::vector<ExceptionDataObject*>& getExceptions() { return exceptions; }  ///< in the order of arrival

 private:
  std::vector<ExceptionDataObject*> exceptions;
};

}  // namespace zarvik
