#include "SimpleOutputWriter.h"

#include "StringInputSource.h"

namespace zarvik {

zkstring SimpleOutputWriter::write(ExternalObject& object, ExceptionHandler* handler, TransformContext& context) {
  exceptionHandler = handler;
  return writeExternal(object, context);
}

RawMessage SimpleOutputWriter::writeMessage(ExternalObject& object, ExceptionHandler* handler,
                                            TransformContext& context) {
  exceptionHandler = handler;
  return writeExternalMessage(object, context);
}

RawMessage SimpleOutputWriter::writeExternalMessage(ExternalObject& object, TransformContext& context) {
  return new StringInputSource(writeExternal(object, context));
}

}  // namespace zarvik
