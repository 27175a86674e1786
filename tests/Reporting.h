#pragma once

#include <type_traits>

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

inline std::string told(const zkstring& text) { return str(text); }
inline std::string told(const Binary& bytes) { return told(bytes.toString()); }
inline std::string told(const RawMessage& message) { return told(message->getAsString()); }
inline std::string told(DataObject* record) { return told(guardedCast<TestRecord>(record)->values.name); }

/// The name of the record, or of the record that is the data.
inline std::string told(const SmartPtr<DataObject>& object) {
  const auto* const external = dynamic_cast<ExternalObject*>(object.get());
  return object.isNull() ? "null" : told(external != nullptr ? external->getData() : object.get());
}
template <class T>
std::string told(const Result<T>& result) {
  std::string text = told(result.value);
  for (ExceptionDataObject* entry : result.exceptions) text += told(SmartPtr<ExceptionDataObject>(entry)->getMessage());
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
    return told("throws " + error.getMessage() + " " + error.getPhase() + " " + error.getErrorType());
  }
}

}  // namespace zarvik
