#pragma once

#include <string>
#include <type_traits>

#include "ExceptionHandler.h"
#include "Exceptions.h"
#include "ExternalObject.h"
#include "GuardedCast.h"
#include "RawMessage.h"
#include "Result.h"
#include "SmartPtr.h"
#include "TestRecord.h"

namespace zarvik {

/// A step of a message as generated code has it: reports an error for each '!' in `text` and throws one for '?'.
inline void report(const std::string& text, ExceptionHandler* handler) {
  for (const char c : text) {
    FieldParsingException error(zkstring(1, c), "Name");
    if (c == '!') handler->onException(&error);
    if (c == '?') throw error;
  }
}

inline std::string textOf(const zkstring& text) { return {text.data(), text.length()}; }

/// A record of that name.
inline SmartPtr<TestRecord> recordOf(const std::string& name) {
  const SmartPtr<TestRecord> record(new TestRecord);
  record->setField(TestRecord::NAME, zkstring(name.c_str()));
  return record;
}

inline std::string nameOf(DataObject* record) { return textOf(guardedCast<TestRecord>(record)->values.name); }

// What an operation gave back. The record is a TestRecord, or has one for data.
inline std::string told(const SmartPtr<DataObject>& object) {
  if (object.isNull()) return "null";
  const auto* const external = dynamic_cast<ExternalObject*>(object.get());
  return nameOf(external != nullptr ? external->getData() : object.get());
}
inline std::string told(const Binary& bytes) { return textOf(bytes.toString()); }
inline std::string told(const RawMessage& message) { return textOf(message->getAsString()); }
template <class T>
std::string told(const Result<T>& result) {
  std::string text = told(result.value);
  for (ExceptionDataObject* entry : result.exceptions) {
    const SmartPtr<ExceptionDataObject> own(entry);
    text += " [" + textOf(own->getMessage()) + textOf(own->getErrorType()) + "]";
  }
  return text;
}

/// What `work` gave back, or the error that it threw with its stamps.
template <class Work>
std::string outcome(Work work) {
  try {
    if constexpr (std::is_void_v<decltype(work())>) {
      return work(), "done";
    } else {
      return told(work());
    }
  } catch (const TransformException& error) {
    return "throws " + textOf(error.getMessage()) + " " + textOf(error.getPhase()) + " " + textOf(error.getErrorType());
  }
}

}  // namespace zarvik
