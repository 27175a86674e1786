#pragma once

#include "ExceptionHandler.h"
#include "RawMessage.h"

namespace zarvik {

class ExternalObject;
class TransformContext;

/// The root of all writers.
class OutputWriter {
 public:
  virtual ~OutputWriter() noexcept(false) = default;  // writers may hold counted objects
};

/// Turns an external object into the text of one message.
///
///     zkstring text = writer.write(object, &handler, context);
///
/// A writer is kept and used for message after message; it serves one at a time.
class SimpleOutputWriter : public OutputWriter {
 public:
  /// Errors that need not stop the writing go to `handler`, which the writer keeps, and does not own, until the next
  /// call that gives one.
  virtual zkstring write(ExternalObject& object, ExceptionHandler* handler, TransformContext& context);
  virtual RawMessage writeMessage(ExternalObject& object, ExceptionHandler* handler, TransformContext& context);

  // The same with the handler that is there.
  virtual zkstring writeExternal(ExternalObject& object, TransformContext& context) = 0;
  virtual RawMessage writeExternalMessage(ExternalObject& object, TransformContext& context);

 protected:
  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;  ///< not null
};

}  // namespace zarvik
