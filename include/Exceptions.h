#pragma once

#include <memory>
#include <vector>

#include "ExceptionDataObject.h"

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

/// Gives a class of exceptions its constructor from the message and its own `clone`:
/// `class E : public ExceptionClass<E, Base> { using ExceptionClass::ExceptionClass; }` and nothing else.
template <class Self, class Base>
class ExceptionClass : public Base {
 public:
  ExceptionClass(const zkstring& message) : Base(message) {}
  Object* clone() const override { return new Self(static_cast<const Self&>(*this)); }

 protected:
  explicit ExceptionClass(const Base& other) : Base(other) {}  ///< takes over what `other` tells
};

/// A state that the code should have made impossible: for generated code.
class InternalError : public ExceptionClass<InternalError, Exception> {
  using ExceptionClass::ExceptionClass;
};

/// An argument that the operation cannot take.
class IllegalArgumentException : public ExceptionClass<IllegalArgumentException, Exception> {
  using ExceptionClass::ExceptionClass;
};

/// A class that is not there: for generated code. UserClassManager tells of an unknown name by TransformException.
class ClassNotFoundException : public ExceptionClass<ClassNotFoundException, Exception> {
  using ExceptionClass::ExceptionClass;
};

/// An object of another class than the one asked for: what `guardedCast` throws.
class ClassCastException : public ExceptionClass<ClassCastException, Exception> {
  using ExceptionClass::ExceptionClass;
};

/// A largest or smallest value of no values at all: for generated code.
class LocalInitializationException : public ExceptionClass<LocalInitializationException, Exception> {
  using ExceptionClass::ExceptionClass;
};

/// The general error of the processing chain: an exception and a record at once.
///
/// A new one has the error code "", the severity "fatal" and is cascadable; type, field name and field ID are null. A
/// copy has the message, the fields and the context properties, and starts with count 0; trace and detail stay behind,
/// so whoever catches one finds neither.
class TransformException : public Exception, public ExceptionDataObject {
 public:
  TransformException(const zkstring& message) : TransformException(message, nullptr) {}
  TransformException(const zkstring& message, Exception* detail);  ///< owns `detail` (may be null) from here on
  TransformException(const ExceptionDataObject& data);
  /// From the first entry, all others being ignored; "No message" without one.
  TransformException(std::vector<ExceptionDataObject*>& entries);
  TransformException(const TransformException& other);
  TransformException& operator=(const TransformException& other);  ///< keeps its own trace and detail

  const zkstring& getMessage() const override { return ExceptionDataObject::getMessage(); }
  void setMessage(const zkstring& text) override;

  virtual void addAll(const TransformException& other) { *this = other; }  ///< adds nothing: it overwrites
  virtual void addAll(const TransformException* other) { addAll(*other); }
  /// Appends one entry, a clone of this exception, which is the caller's.
  void getExceptionsAsList(std::vector<ExceptionDataObject*>& list) const;
  void setInternalCode(const zkstring& code) { setContextProperty(getINTERNAL_CODE(), code); }

  Object* clone() const override;
  zkstring toString() const override { return ExceptionDataObject::toString(); }  ///< the XML text
  using ExceptionDataObject::toXMLString;
  zkstring toXMLString(bool /*ignored*/) { return toXMLString(); }
};

/// A recognised message that no routing row accepts.
class UnhandledMessageException : public ExceptionClass<UnhandledMessageException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// An input that no identifier recognises.
class UnrecognizedMessageException : public ExceptionClass<UnrecognizedMessageException, UnhandledMessageException> {
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

/// A field name or a field index that the object does not have.
class FieldNotFoundException : public ExceptionClass<FieldNotFoundException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A value of another type than the field's.
class FieldTypeMismatchException : public ExceptionClass<FieldTypeMismatchException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A field without value that must have one.
class FieldNullException : public ExceptionClass<FieldNullException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A field whose text cannot be read as its type.
class FieldParsingException : public ExceptionClass<FieldParsingException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  FieldParsingException(const zkstring& message, const zkstring& fieldName) : ExceptionClass(message) {
    setFFieldName(fieldName);
  }
};

/// A field whose value breaks a rule.
class FieldValidationException : public ExceptionClass<FieldValidationException, TransformException> {
 public:
  FieldValidationException(const zkstring& message, const zkstring& fieldName) : ExceptionClass(message) {
    setFFieldName(fieldName);
  }
};

/// A look-up by name that found nothing fitting.
class NamingException : public ExceptionClass<NamingException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// A section with too few or too many elements.
class SectionConstraintException : public ExceptionClass<SectionConstraintException, TransformException> {
  using ExceptionClass::ExceptionClass;
};

/// An FCS message that cannot be read; knows the line that failed. For generated code.
class FCSParseException : public ExceptionClass<FCSParseException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  FCSParseException(const TransformException& error) : ExceptionClass(error) {}

  void setFailedLine(const zkstring& text) { failedLine = text; }
  void setLocation(int line, int column) {
    setLine(line);
    setColumn(column);
  }

 private:
  zkstring failedLine;
};

/// A FIX message that cannot be read.
class FIXParsingException : public ExceptionClass<FIXParsingException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  FIXParsingException(const TransformException& error) : ExceptionClass(error) {}
};

/// A FIX message that cannot be written.
class FIXWriterException : public ExceptionClass<FIXWriterException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  FIXWriterException(const TransformException& error) : ExceptionClass(error) {}
};

/// A SIAC Canonical message that cannot be read.
class SIACCanonicalParsingException : public ExceptionClass<SIACCanonicalParsingException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  SIACCanonicalParsingException(const TransformException& error) : ExceptionClass(error) {}
};

/// A SIAC Canonical message that cannot be written: for generated code.
class SIACCanonicalWriterException : public ExceptionClass<SIACCanonicalWriterException, TransformException> {
 public:
  using ExceptionClass::ExceptionClass;
  SIACCanonicalWriterException(const TransformException& error) : ExceptionClass(error) {}
};

}  // namespace zarvik
