#pragma once

#include <version>
#ifdef __cpp_lib_source_location
#include <source_location>
#endif

namespace zarvik {

#ifdef __cpp_lib_source_location
using CallSite = std::source_location;
#else
/// The line of a call, for compilers whose library lacks std::source_location.
class CallSite {
 public:
  static constexpr CallSite current(unsigned int line = __builtin_LINE()) { return CallSite(line); }
  constexpr unsigned int line() const { return number; }

 private:
  explicit constexpr CallSite(unsigned int number) : number(number) {}
  unsigned int number;
};
#endif

/// Throws `error`, marked with its origin: `source` is the path of the file without its ending, such as
/// "cpp/MessageRouter"; the line is the caller's. By value on purpose: what a handler sees is always a copy.
template <class E>
[[noreturn]] void throwFrom(const char* source, E error, CallSite site = CallSite::current()) {
  error.getTrace().setFileName(source);
  error.getTrace().setLine(static_cast<int>(site.line()));
  throw error;
}

}  // namespace zarvik
