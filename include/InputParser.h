#pragma once

#include "Binary.h"
#include "ExceptionHandler.h"
#include "ExternalObject.h"

namespace zarvik {

class InputSource;
class TransformContext;

/// Reads the wire format of one external message: the base of the parsers of all formats, and of generated ones.
///
/// A generated parser fills the two pure operations. It throws an error that ends the message, and hands one after
/// which it can go on to `exceptionHandler`. A parser belongs to its message and serves one thread at a time.
class InputParser : public Object {
 public:
  /// Fills `object`, which stays the caller's; an error that is thrown leaves it half filled. A source is read whole.
  virtual void parse(ExternalObject* object, InputSource& source, TransformContext& context);
  /// A new object, with count 0, which is the caller's.
  virtual ExternalObject* parse(InputSource& source, TransformContext& context);
  virtual void parse(ExternalObject* object, const Binary& bytes, TransformContext& context) = 0;
  virtual ExternalObject* parse(const Binary& bytes, TransformContext& context) = 0;

  /// The handler stays the caller's and is used until the next one is set.
  void setExceptionHandler(ExceptionHandler* handler) { exceptionHandler = handler; }

  /// Throws FieldParsingException "Field '<name>' cannot be null.", with the name of the field at `index` of `object`,
  /// when `value` is empty; "Null value error while parsing a field" when there is no such field, or no object.
  void ensureNotNull0(const zkstring& value, DataObject* object, int index, TransformContext& context) const;

 protected:
  static bool isNull(const zkstring& text) { return text.empty(); }
  /// The same test, with the quick half in place.
  void ensureNotNull(const zkstring& value, DataObject* object, int index, TransformContext& context) const {
    if (value.empty()) ensureNotNull0(value, object, index, context);
  }

  ExceptionHandler* exceptionHandler = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;  ///< not owned
};

}  // namespace zarvik
