#pragma once

#include <memory>

#include "Object.h"

namespace zarvik {

/// Where an exception was thrown: the path of the source file without its ending, and the line there.
class ExceptionTrace {
 public:
  void setFileName(const char* name) { fileName = name; }
  zkstring getFileName() const { return fileName; }
  void setLine(int number) { line = number; }
  int getLine() const { return line; }  ///< 0 when not set
  bool isValid() const { return line != 0; }
  zkstring getTraceString() const;  ///< "<file>:<line>:", empty when not set

 private:
  zkstring fileName;
  int line = 0;
};

/// The root of all that the system throws, by value: a text, where it was thrown, and perhaps the exception behind it.
class Exception : public virtual Object {
 public:
  Exception(const zkstring& message) : message(message) {}
  Exception(const zkstring& message, Exception* detail);  ///< owns `detail` (may be null) from here on
  Exception(const Exception& other);                      ///< clones the detail
  Exception(Exception&& other) noexcept = default;
  Exception& operator=(const Exception& other);
  Exception& operator=(Exception&& other) = default;
  ~Exception() override;

  virtual const zkstring& getMessage() const { return message; }
  virtual void setMessage(const zkstring& text) { message = text; }

  Exception* getDetail() const { return detail.get(); }  ///< stays this exception's own; null if there is none
  void setDetail(const Exception& cause);                ///< keeps a clone
  ExceptionTrace& getTrace() const { return trace; }
  zkstring getTraceString() const { return trace.getTraceString(); }
  Exception& getThis() { return *this; }

  zkstring toString() const override;  ///< "<class>:<message>"
  Object* clone() const override;

 private:
  zkstring message;
  std::unique_ptr<Exception> detail;
  mutable ExceptionTrace trace;
};

/// Gives a class of exceptions its own `clone`: `class E : public ExceptionClass<E, Base>` and nothing else.
template <class Self, class Base>
class ExceptionClass : public Base {
 public:
  using Base::Base;
  Object* clone() const override { return new Self(static_cast<const Self&>(*this)); }
};

/// The general error of the processing chain, with a severity: "fatal", "error" or "warn". A copy has the message and
/// the severity; trace and detail stay behind.
class TransformException : public Exception {
 public:
  TransformException(const zkstring& message) : Exception(message) {}
  TransformException(const zkstring& message, Exception* detail) : Exception(message, detail) {}
  TransformException(const TransformException& other);
  TransformException& operator=(const TransformException& other);

  zkstring getSeverity() const { return severity; }
  void setSeverity(const zkstring& value) { severity = value; }

  Object* clone() const override;

 private:
  zkstring severity = zkstringliteral("fatal");
};

/// A recognised message that no routing row accepts.
class UnhandledMessageException : public ExceptionClass<UnhandledMessageException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// An input that no identifier recognises.
class UnrecognizedMessageException : public ExceptionClass<UnrecognizedMessageException, UnhandledMessageException> {
  using ExceptionClass::ExceptionClass;
};

/// A look-up by name that found nothing fitting.
class NamingException : public ExceptionClass<NamingException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A field whose text cannot be read as its type.
class FieldParsingException : public ExceptionClass<FieldParsingException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// An error of a formula at run time.
class TransformRuntimeException : public ExceptionClass<TransformRuntimeException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A null value where a value was needed.
class TransformNullValueException : public ExceptionClass<TransformNullValueException, TransformRuntimeException> {
  using ExceptionClass::ExceptionClass;
};

}  // namespace zarvik
