#include "Exceptions.h"

#include <string>

#include "Class.h"

namespace zarvik {
namespace {

std::unique_ptr<Exception> copyOf(const Exception* exception) {
  if (exception == nullptr) return nullptr;
  return std::unique_ptr<Exception>(dynamic_cast<Exception*>(exception->clone()));
}
}  // namespace

zkstring ExceptionTrace::getTraceString() const {
  if (!isValid()) return {};
  return fileName + ":" + std::to_string(line).c_str() + ":";
}

Exception::Exception(const zkstring& message, Exception* detail) : message(message), detail(detail) {}

Exception::Exception(const Exception& other)
    : Object(), message(other.message), detail(copyOf(other.detail.get())), trace(other.trace) {}

Exception& Exception::operator=(const Exception& other) {
  if (this != &other) *this = Exception(other);
  return *this;
}

Exception::~Exception() = default;

void Exception::setDetail(const Exception& cause) { detail = copyOf(&cause); }

zkstring Exception::toString() const { return Class(typeid(*this)).getName() + ":" + message; }

Object* Exception::clone() const { return new Exception(*this); }

TransformException::TransformException(const TransformException& other) : Object(), Exception(other.getMessage()) {
  *this = other;
}

TransformException& TransformException::operator=(const TransformException& other) {
  setMessage(other.getMessage());
  errorCode = other.errorCode;
  severity = other.severity;
  fieldName = other.fieldName;
  line = other.line;
  column = other.column;
  return *this;
}

Object* TransformException::clone() const { return new TransformException(*this); }

}  // namespace zarvik
