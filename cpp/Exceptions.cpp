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

TransformException::TransformException(const zkstring& message, Exception* detail) : Exception(message, detail) {
  ExceptionDataObject::setMessage(message);
  setErrorCode(zkstring::EMPTY);
  setSeverity(getEXCEPTION_SEVERITY_FATAL());
  setCascadable(true);
}

TransformException::TransformException(const ExceptionDataObject& data)
    : Exception(zkstring::EMPTY), ExceptionDataObject(data) {
  if (isNotNull(MESSAGE)) Exception::setMessage(ExceptionDataObject::getMessage());
}

TransformException::TransformException(std::vector<ExceptionDataObject*>& entries)
    : TransformException(zkstringliteral("No message")) {
  if (!entries.empty()) *this = TransformException(*entries.front());
}

// The messages are read below the virtual getter, which throws for a null field: an error must always be copyable.
TransformException::TransformException(const TransformException& other)
    : Object(), Exception(other.Exception::getMessage()), ExceptionDataObject(other) {}

TransformException& TransformException::operator=(const TransformException& other) {
  Exception::setMessage(other.Exception::getMessage());
  ExceptionDataObject::operator=(other);
  return *this;
}

void TransformException::setMessage(const zkstring& text) {
  Exception::setMessage(text);
  ExceptionDataObject::setMessage(text);
}

void TransformException::getExceptionsAsList(std::vector<ExceptionDataObject*>& list) const {
  Object* const copy = clone();
  auto* const entry = dynamic_cast<TransformException*>(copy);
  if (entry == nullptr) SmartPtr<Object>{copy};  // a class below cloned into something else, which goes
  list.push_back(entry);
}

Object* TransformException::clone() const { return new TransformException(*this); }

}  // namespace zarvik
